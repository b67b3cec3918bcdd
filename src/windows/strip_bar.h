// The widgets of what must be noticed and must stop nobody: the strip above the sheet, and the line that the
// status bar shows for some seconds.
#pragma once
#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QTimer>
#include <QToolButton>
#include <array>

#include "ui/control.h"

namespace quillane {

/// An information bar as a first-class desktop has it: a drawing, the words, up to three buttons, a close
/// button.  A screen reader reads it as it appears.
class Strip : public QFrame {
  Q_OBJECT

 public:
  static constexpr int Buttons = 3;
  Strip();
  QLabel* Text() const { return text_; }
  QPushButton* Button(int k) const { return buttons_[static_cast<size_t>(k)]; }
  QToolButton* Close() const { return close_; }
  /// Shows or hides the strip as lblStrip says, and has it read.
  void Follow(const Control& lblStrip);

 protected:
  void changeEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QLabel* text_;  // the widget tree owns these
  std::array<QPushButton*, Buttons> buttons_{};
  QToolButton* close_;
};

/// What a command says stands before the status labels for some seconds.
class StatusLine : public QStackedWidget {
  Q_OBJECT

 public:
  StatusLine(QWidget* labels, QWidget* line);
  void Follow(const Control& lblStatus);

 signals:
  void Read();  ///< it has stood long enough

 private:
  QTimer timer_;
};

}  // namespace quillane
