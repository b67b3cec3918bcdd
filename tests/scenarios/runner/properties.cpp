#include "properties.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QSpinBox>
#include <QTextEdit>
#include <QTreeView>
#include <functional>
#include <map>

#include "failure.h"
#include "model/page.h"
#include "model/proposal.h"
#include "ui/control.h"

namespace quillane::scenario {

namespace {

constexpr double TwipsPerPixel = 15;

/// "Font.Bold", "FontBold" and "Bold" are one property.
QString Canonical(const QString& name) {
  static const std::map<QString, QString> aliases{
      {"bold", "fontbold"},           {"italic", "fontitalic"}, {"underline", "fontunderline"},
      {"tooltiptext", "tooltip"},     {"font", "fontname"},     {"selectedtext", "seltext"},
      {"backcolour", "backcolor"},    {"color", "forecolor"},   {"forecolour", "forecolor"},
      {"selectionstart", "selstart"}, {"count", "listcount"},   {"title", "caption"},
  };
  const auto found = aliases.find(name.toLower());
  return found == aliases.end() ? name.toLower() : found->second;
}

// The properties of a control of a page or of the main window.

template <class Get>
using Readers = std::map<QString, Get>;
using ControlReader = std::function<Value(const Control&)>;

const Readers<ControlReader>& ControlReaders() {
  static const Readers<ControlReader> readers{
      {"text", [](const Control& c) { return TextValue(c.Text()); }},
      {"caption", [](const Control& c) { return CaptionValue(c.Caption()); }},
      {"tag", [](const Control& c) { return TextValue(c.Tag()); }},
      {"tooltip", [](const Control& c) { return TextValue(c.ToolTip()); }},
      {"visible", [](const Control& c) { return BooleanValue(c.Visible()); }},
      {"enabled", [](const Control& c) { return BooleanValue(c.Enabled()); }},
      {"checked", [](const Control& c) { return BooleanValue(c.Checked()); }},
      {"value", [](const Control& c) { return BooleanValue(c.Checked()); }},
      {"locked", [](const Control& c) { return BooleanValue(c.Locked()); }},
      {"left", [](const Control& c) { return TwipsValue(c.Left()); }},
      {"top", [](const Control& c) { return TwipsValue(c.Top()); }},
      {"width", [](const Control& c) { return TwipsValue(c.Width()); }},
      {"height", [](const Control& c) { return TwipsValue(c.Height()); }},
      {"forecolor", [](const Control& c) { return ColourValue(c.ForeColor()); }},
      {"backcolor", [](const Control& c) { return ColourValue(c.BackColor()); }},
      {"backstyle", [](const Control& c) { return NumberValue(static_cast<int>(c.BackStyle())); }},
      {"fontname", [](const Control& c) { return NameValue(c.GetFont().name); }},
      {"fontsize", [](const Control& c) { return NumberValue(static_cast<double>(c.GetFont().size)); }},
      {"fontbold", [](const Control& c) { return BooleanValue(c.GetFont().bold); }},
      {"fontitalic", [](const Control& c) { return BooleanValue(c.GetFont().italic); }},
      {"fontunderline", [](const Control& c) { return BooleanValue(c.GetFont().underline); }},
      {"selstart", [](const Control& c) { return NumberValue(c.SelStart()); }},
      {"sellength", [](const Control& c) { return NumberValue(c.SelLength()); }},
      {"seltext", [](const Control& c) { return TextValue(c.SelText()); }},
      {"index", [](const Control& c) { return NumberValue(c.Index()); }},
      {"name", [](const Control& c) { return TextValue(c.Array()); }},
      {"picture", [](const Control& c) { return TextValue(c.GetPicture().source); }},
  };
  return readers;
}

QString ChiefProperty(const Control& control) {
  switch (control.GetKind()) {
    case Kind::TextBox:
      return QStringLiteral("text");
    case Kind::Label:
    case Kind::Button:
    case Kind::Menu:
      return QStringLiteral("caption");
    default:
      return QStringLiteral("visible");
  }
}

// The properties of a widget.

template <class Widget>
const Widget* As(const QWidget& widget) {
  return qobject_cast<const Widget*>(&widget);
}

/// What was typed or chosen.
std::optional<QString> EntryOf(const QWidget& widget) {
  if (const auto* edit = As<QLineEdit>(widget)) return edit->text();
  if (const auto* edit = As<QPlainTextEdit>(widget)) return edit->toPlainText();
  if (const auto* edit = As<QTextEdit>(widget)) return edit->toPlainText();
  if (const auto* box = As<QComboBox>(widget))
    return box->currentIndex() < 0 && !box->isEditable() ? box->placeholderText() : box->currentText();
  if (const auto* spin = As<QAbstractSpinBox>(widget)) return spin->text();
  if (const auto* view = As<QAbstractItemView>(widget)) return view->currentIndex().data().toString();
  return std::nullopt;
}

/// What stands on it.
std::optional<QString> LetteringOf(const QWidget& widget) {
  if (const auto* label = As<QLabel>(widget)) return label->text();
  if (const auto* button = As<QAbstractButton>(widget)) return button->text();
  if (const auto* box = As<QGroupBox>(widget)) return box->title();
  if (widget.isWindow()) return widget.windowTitle();
  return std::nullopt;
}

std::optional<Value> TextOf(const QWidget& widget) {
  if (const std::optional<QString> entry = EntryOf(widget)) return TextValue(*entry);
  if (const std::optional<QString> lettering = LetteringOf(widget)) return CaptionValue(*lettering);
  return std::nullopt;
}

std::optional<Value> CheckOf(const QWidget& widget) {
  if (const auto* button = As<QAbstractButton>(widget)) return BooleanValue(button->isChecked());
  if (const auto* box = As<QGroupBox>(widget)) return BooleanValue(box->isChecked());
  return std::nullopt;
}

std::optional<Value> NumberOf(const QWidget& widget) {
  if (const auto* bar = As<QAbstractSlider>(widget)) return NumberValue(bar->value());
  if (const auto* spin = As<QSpinBox>(widget)) return NumberValue(spin->value());
  return std::nullopt;
}

std::optional<Value> LargestOf(const QWidget& widget) {
  if (const auto* bar = As<QAbstractSlider>(widget)) return NumberValue(bar->maximum());
  return std::nullopt;
}

struct Selection {
  int start = 0, length = 0;
  QString text;
};

std::optional<Selection> SelectionOf(const QWidget& widget) {
  const auto of = [](const QTextCursor& cursor) {
    return Selection{cursor.selectionStart(), cursor.selectionEnd() - cursor.selectionStart(),
                     cursor.selectedText()};
  };
  if (const auto* edit = As<QPlainTextEdit>(widget)) return of(edit->textCursor());
  if (const auto* edit = As<QTextEdit>(widget)) return of(edit->textCursor());
  const auto* edit = As<QLineEdit>(widget);
  if (!edit) return std::nullopt;
  const bool any = edit->hasSelectedText();
  return Selection{any ? edit->selectionStart() : edit->cursorPosition(), any ? edit->selectionLength() : 0,
                   edit->selectedText()};
}

int CurrentRow(const QWidget& widget) {
  if (const auto* box = As<QComboBox>(widget)) return box->currentIndex();
  if (const auto* view = As<QAbstractItemView>(widget)) return view->currentIndex().row();
  return -1;
}

Color ToColour(const QColor& colour) {
  return colour.red() | colour.green() << 8 | colour.blue() << 16;
}

std::optional<Value> ListProperty(const QWidget& widget, const QString& name, int index) {
  if (!As<QComboBox>(widget) && !As<QAbstractItemView>(widget)) return std::nullopt;
  if (name == QLatin1String("listindex")) return NumberValue(CurrentRow(widget));
  const QStringList rows = RowsOf(const_cast<QWidget*>(&widget));
  if (name == QLatin1String("listcount")) return NumberValue(static_cast<double>(rows.size()));
  if (name == QLatin1String("list") && index >= 0)
    return TextValue(index < rows.size() ? rows[index] : QStringLiteral("(no such row)"));
  return std::nullopt;
}

std::optional<Value> SelectionProperty(const QWidget& widget, const QString& name) {
  const std::optional<Selection> selection = SelectionOf(widget);
  if (!selection) return std::nullopt;
  if (name == QLatin1String("selstart")) return NumberValue(selection->start);
  if (name == QLatin1String("sellength")) return NumberValue(selection->length);
  if (name == QLatin1String("seltext")) return TextValue(selection->text);
  return std::nullopt;
}

using WidgetReader = std::function<std::optional<Value>(const QWidget&)>;

const Readers<WidgetReader>& WidgetReaders() {
  static const Readers<WidgetReader> readers{
      {"text", [](const QWidget& w) { return TextOf(w); }},
      {"caption", [](const QWidget& w) { return TextOf(w); }},
      {"checked", [](const QWidget& w) { return CheckOf(w); }},
      {"value", [](const QWidget& w) { return NumberOf(w) ? NumberOf(w) : CheckOf(w); }},
      {"max", [](const QWidget& w) { return LargestOf(w); }},
      {"visible", [](const QWidget& w) { return BooleanValue(w.isVisible()); }},
      {"enabled", [](const QWidget& w) { return BooleanValue(w.isEnabled()); }},
      {"tooltip", [](const QWidget& w) { return TextValue(w.toolTip()); }},
      {"left", [](const QWidget& w) { return TwipsValue(w.x() * TwipsPerPixel); }},
      {"top", [](const QWidget& w) { return TwipsValue(w.y() * TwipsPerPixel); }},
      {"width", [](const QWidget& w) { return TwipsValue(w.width() * TwipsPerPixel); }},
      {"height", [](const QWidget& w) { return TwipsValue(w.height() * TwipsPerPixel); }},
      {"forecolor",
       [](const QWidget& w) { return ColourValue(ToColour(w.palette().color(w.foregroundRole()))); }},
      {"backcolor",
       [](const QWidget& w) { return ColourValue(ToColour(w.palette().color(w.backgroundRole()))); }},
      {"fontname", [](const QWidget& w) { return NameValue(w.font().family()); }},
      {"fontsize", [](const QWidget& w) { return NumberValue(w.font().pointSizeF()); }},
      {"fontbold", [](const QWidget& w) { return BooleanValue(w.font().bold()); }},
      {"fontitalic", [](const QWidget& w) { return BooleanValue(w.font().italic()); }},
      {"fontunderline", [](const QWidget& w) { return BooleanValue(w.font().underline()); }},
  };
  return readers;
}

std::optional<Value> WidgetProperty(const QWidget& widget, const QString& name, int index) {
  const auto reader = WidgetReaders().find(name);
  if (reader != WidgetReaders().end()) return reader->second(widget);
  const std::optional<Value> list = ListProperty(widget, name, index);
  return list ? list : SelectionProperty(widget, name);
}

/// A menu entry as its menu shows it, which is what a person can use.
std::optional<Value> ActionProperty(const QAction& action, const QString& name) {
  if (name.isEmpty() || name == QLatin1String("caption") || name == QLatin1String("text"))
    return CaptionValue(action.text());
  if (name == QLatin1String("visible")) return BooleanValue(action.isVisible());
  if (name == QLatin1String("enabled")) return BooleanValue(action.isEnabled());
  if (name == QLatin1String("checked") || name == QLatin1String("value"))
    return BooleanValue(action.isChecked());
  return std::nullopt;
}

std::optional<Value> PageProperty(const Page& page, const QString& name) {
  if (name == QLatin1String("tag")) return TextValue(page.tag);
  if (name == QLatin1String("caption")) return TextValue(page.form.caption);
  if (name == QLatin1String("visible")) return BooleanValue(editing.FrontWindow == page.window);
  return std::nullopt;
}

/// What the main window shows of a control must be what its state says: a person sees the window.
void CheckShown(const Target& target, const QString& name, const Value& state) {
  std::optional<Value> shown;
  if (name == QLatin1String("visible"))
    shown = BooleanValue(target.widget->isVisibleTo(target.widget->window()));
  if (name == QLatin1String("enabled"))
    shown = BooleanValue(target.widget->isEnabledTo(target.widget->window()));
  if (shown && shown->text != state.text)
    throw Failure(
        QStringLiteral("the window shows %1 of %2 as its state: %3").arg(name, target.name, state.text),
        QStringLiteral("the window has ") + shown->text);
}

std::optional<Value> ReadControl(const Target& target, const QString& name) {
  const QString wanted = name.isEmpty() ? ChiefProperty(*target.control) : name;
  const auto reader = ControlReaders().find(wanted);
  if (reader == ControlReaders().end()) return std::nullopt;
  const Value value = reader->second(*target.control);
  if (!target.page && target.widget) CheckShown(target, wanted, value);
  return value;
}

std::optional<Value> ReadWidget(const QWidget& widget, const QString& name, int index) {
  if (!name.isEmpty()) return WidgetProperty(widget, name, index);
  const std::optional<Value> text = TextOf(widget);
  return text ? text : NumberOf(widget);
}

std::optional<Value> Read(const Target& target, const QString& name, int index) {
  if (target.action) return ActionProperty(*target.action, name);
  if (target.control) return ReadControl(target, name);
  if (target.isWindow && target.page) return PageProperty(*target.page, name);
  return target.widget ? ReadWidget(*target.widget, name, index) : std::nullopt;
}

void RowsUnder(const QAbstractItemModel& model, const QModelIndex& parent, int column,
               const std::function<bool(const QModelIndex&)>& open, QStringList& rows) {
  for (int row = 0; row < model.rowCount(parent); ++row) {
    const QModelIndex index = model.index(row, column, parent);
    rows.append(index.data().toString());
    if (open(index)) RowsUnder(model, index, column, open, rows);
  }
}

}  // namespace

QStringList RowsOf(QWidget* list) {
  QStringList rows;
  if (const auto* box = qobject_cast<QComboBox*>(list)) {
    for (int row = 0; row < box->count(); ++row) rows.append(box->itemText(row));
  } else if (const auto* view = qobject_cast<QAbstractItemView*>(list)) {
    const auto* tree = qobject_cast<const QTreeView*>(view);
    RowsUnder(
        *view->model(), view->rootIndex(), 0,
        [&](const QModelIndex& at) { return tree && tree->isExpanded(at); }, rows);
  }
  return rows;
}

Value ReadProperty(const Target& target, const QString& name, int index) {
  const std::optional<Value> value = Read(target, Canonical(name), index);
  if (!value)
    throw Failure(QStringLiteral("%1 has a property %2").arg(target.name, name),
                  QStringLiteral("it has none"));
  return *value;
}

}  // namespace quillane::scenario
