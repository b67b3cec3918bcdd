// What several dialogs are made of: named controls, colour buttons, the list of fonts.
#pragma once
#include <QAbstractButton>
#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <functional>

#include "ui/font.h"

namespace quillane {

/// Gives a control its name, and the words by which a screen reader knows it.
template <class Widget>
Widget* Named(Widget* widget, const QString& name, const QString& spoken = QString()) {
  widget->setObjectName(name);
  if (!spoken.isEmpty()) widget->setAccessibleName(spoken);
  return widget;
}

/// A box for many lines that asks for the room of a few, and takes what there is.
class LinesBox : public QPlainTextEdit {
 public:
  explicit LinesBox(int lines) : lines_(lines) {}
  QSize sizeHint() const override { return {QPlainTextEdit::sizeHint().width(), Height()}; }
  QSize minimumSizeHint() const override { return {QPlainTextEdit::minimumSizeHint().width(), Height()}; }

 private:
  int Height() const {
    constexpr int edges = 12;
    return fontMetrics().height() * lines_ + edges;
  }
  int lines_;
};

/// A label for a text that is never markup.
QLabel* PlainLabel(const QString& name, const QString& text);

/// A push button of a box; the first one that accepts is the default.
QPushButton* AddButton(QDialogButtonBox& buttons, const char* name, const char* caption,
                       QDialogButtonBox::ButtonRole role);

/// A button that is a colour, and says so by a ring while it is the one in use.
class ColourButton : public QAbstractButton {
 public:
  ColourButton(Color color, const QString& colourName);
  Color GetColor() const { return color_; }
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Color color_;
};

/// cmdColor(0) to cmdColor(7) in two rows.
class ColourChoice : public QWidget {
 public:
  explicit ColourChoice(const std::function<void(Color)>& chosen);
  /// Rings the button of that colour, or none.
  void ShowColour(Color color);

 private:
  std::vector<ColourButton*> buttons_;  // the layout owns them
};

/// lstFont: the fonts of the screen, under all the names that they answer to.  Nothing is selected for a font
/// that the system does not have.
class FontList : public QListWidget {
 public:
  explicit FontList(const std::function<void(const QString&)>& chosen);
  /// Selects a font by its name without telling that it was chosen.
  void ShowFont(const QString& name);

 protected:
  void focusInEvent(QFocusEvent* event) override;
};

/// A check box's or button's small change of state that its own handler must not hear.
template <class Widget, class Change>
void Quietly(Widget* widget, Change change) {
  const QSignalBlocker quiet(widget);
  change(*widget);
}

}  // namespace quillane
