#include "properties.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>
#include <QTreeView>
#include <functional>

#include "model/page.h"
#include "model/proposal.h"

namespace quillane::scenario {

namespace {

constexpr int TwipsPerPixel = 15;

using enum ValueKind;
using Found = std::optional<Value>;

template <class Kind>
const Kind* As(const QObject& object) {
  return qobject_cast<const Kind*>(&object);
}

/// The first of the toolkit's properties that an object has.
Found FirstOf(const QObject& object, ValueKind kind, std::initializer_list<const char*> names,
              int scale = 1) {
  for (const char* name : names)
    if (const QVariant value = object.property(name); value.isValid())
      return Value{kind, scale == 1 ? value : value.toInt() * scale};
  return std::nullopt;
}

/// What was typed or chosen, and else what stands on it.
Found TextOf(const QObject& object) {
  if (const auto* view = As<QAbstractItemView>(object))
    return Value{Text, view->currentIndex().data().toString()};
  if (const auto* box = As<QComboBox>(object); box && box->currentIndex() < 0 && !box->isEditable())
    return Value{Text, box->placeholderText()};
  const bool entry = As<QLineEdit>(object) || As<QAbstractSpinBox>(object);
  if (const Found typed = FirstOf(object, Text, {"plainText", "currentText"})) return typed;
  if (const Found text = FirstOf(object, entry ? Text : Caption, {"text", "title"})) return text;
  const auto* widget = As<QWidget>(object);
  return widget && widget->isWindow() ? Found{{Caption, widget->windowTitle()}} : std::nullopt;
}

struct Selection {
  int start = 0;
  QString text;
};

std::optional<Selection> SelectionOf(const QObject& object) {
  const auto of = [](const QTextCursor& cursor) {
    return Selection{cursor.selectionStart(), cursor.selectedText()};
  };
  if (const auto* edit = As<QPlainTextEdit>(object)) return of(edit->textCursor());
  if (const auto* edit = As<QTextEdit>(object)) return of(edit->textCursor());
  const auto* edit = As<QLineEdit>(object);
  if (!edit) return std::nullopt;
  return Selection{edit->hasSelectedText() ? edit->selectionStart() : edit->cursorPosition(),
                   edit->selectedText()};
}

int ToColour(const QColor& colour) {
  return colour.red() | colour.green() << 8 | colour.blue() << 16;
}

/// A field's ground is what its text stands on; a button that has no colour of its own has the desktop's.
QVariant GroundOf(const QWidget& widget) {
  const QPalette& palette = widget.palette();
  if (As<QAbstractButton>(widget) &&
      palette.color(QPalette::Button) == QApplication::palette(&widget).color(QPalette::Button))
    return colors::ButtonFace;
  const bool field = As<QLineEdit>(widget) || As<QAbstractScrollArea>(widget) || As<QComboBox>(widget) ||
                     As<QAbstractSpinBox>(widget);
  return ToColour(palette.color(field ? QPalette::Base : widget.backgroundRole()));
}

int CurrentRow(const QObject& object) {
  const auto* view = As<QAbstractItemView>(object);
  return view ? view->currentIndex().row() : object.property("currentIndex").toInt();
}

/// A property: its names, how its values compare, and how a control of a page or of the main window and how a
/// widget or a menu's entry has it.
struct Row {
  const char* names;
  ValueKind kind;
  std::function<QVariant(const Control&)> ofControl;
  std::function<Found(const QObject&, int index)> ofObject;
};

using Reader = std::function<Found(const QObject&, int)>;

Reader Plain(ValueKind kind, const char* property, int scale = 1) {
  return [=](const QObject& o, int) { return FirstOf(o, kind, {property}, scale); };
}

Reader OfWidget(ValueKind kind, QVariant (*part)(const QWidget&)) {
  return [=](const QObject& o, int) {
    const auto* widget = As<QWidget>(o);
    return widget ? Found{{kind, part(*widget)}} : std::nullopt;
  };
}

Reader OfSelection(ValueKind kind, QVariant (*part)(const Selection&)) {
  return [=](const QObject& o, int) {
    const auto selection = SelectionOf(o);
    return selection ? Found{{kind, part(*selection)}} : std::nullopt;
  };
}

Reader OfList(ValueKind kind, QVariant (*part)(const QObject&, const QStringList&, int)) {
  return [=](const QObject& o, int index) {
    const bool list = As<QComboBox>(o) || As<QAbstractItemView>(o);
    return list ? Found{{kind, part(o, RowsOf(As<QWidget>(o)), index)}} : std::nullopt;
  };
}

const Row* FindRow(const QString& name) {
  using C = const Control&;
  using W = const QWidget&;
  using S = const Selection&;
  using O = const QObject&;
  using L = const QStringList&;
  using V = QVariant;
  static const Reader text = [](O o, int) { return TextOf(o); };
  static const Reader value = [](O o, int) {
    const Found number = FirstOf(o, Number, {"value"});
    return number ? number : FirstOf(o, Boolean, {"checked"});
  };
  static const std::vector<Row> rows{
      {"text", Text, [](C c) { return c.Text(); }, text},
      {"caption title", Caption, [](C c) { return c.Caption(); }, text},
      {"tag", Text, [](C c) { return c.Tag(); }, {}},
      {"tooltip tooltiptext", Text, [](C c) { return c.ToolTip(); }, Plain(Text, "toolTip")},
      {"visible", Boolean, [](C c) { return c.Visible(); }, Plain(Boolean, "visible")},
      {"enabled", Boolean, [](C c) { return c.Enabled(); }, Plain(Boolean, "enabled")},
      {"checked", Boolean, [](C c) { return c.Checked(); }, Plain(Boolean, "checked")},
      {"value", Boolean, [](C c) { return c.Checked(); }, value},
      {"locked", Boolean, [](C c) { return c.Locked(); }, Plain(Boolean, "readOnly")},
      {"max", Number, {}, Plain(Number, "maximum")},
      {"left", Twips, [](C c) { return c.Left(); }, Plain(Twips, "x", TwipsPerPixel)},
      {"top", Twips, [](C c) { return c.Top(); }, Plain(Twips, "y", TwipsPerPixel)},
      {"width", Twips, [](C c) { return c.Width(); }, Plain(Twips, "width", TwipsPerPixel)},
      {"height", Twips, [](C c) { return c.Height(); }, Plain(Twips, "height", TwipsPerPixel)},
      {"forecolor color", Colour, [](C c) { return c.ForeColor(); },
       OfWidget(Colour, [](W w) -> V { return ToColour(w.palette().color(w.foregroundRole())); })},
      {"backcolor", Colour, [](C c) { return c.BackColor(); }, OfWidget(Colour, GroundOf)},
      {"backstyle", Number, [](C c) { return static_cast<int>(c.BackStyle()); }, {}},
      {"fontname font", Name, [](C c) { return c.GetFont().name; },
       OfWidget(Name, [](W w) -> V { return w.font().family(); })},
      {"fontsize", Number, [](C c) { return c.GetFont().size; },
       OfWidget(Number, [](W w) -> V { return w.font().pointSizeF(); })},
      {"fontbold bold", Boolean, [](C c) { return c.GetFont().bold; },
       OfWidget(Boolean, [](W w) -> V { return w.font().bold(); })},
      {"fontitalic italic", Boolean, [](C c) { return c.GetFont().italic; },
       OfWidget(Boolean, [](W w) -> V { return w.font().italic(); })},
      {"fontunderline underline", Boolean, [](C c) { return c.GetFont().underline; },
       OfWidget(Boolean, [](W w) -> V { return w.font().underline(); })},
      {"selstart", Number, [](C c) { return c.SelStart(); },
       OfSelection(Number, [](S s) -> V { return s.start; })},
      {"sellength", Number, [](C c) { return c.SelLength(); },
       OfSelection(Number, [](S s) -> V { return s.text.size(); })},
      {"seltext", Text, [](C c) { return c.SelText(); }, OfSelection(Text, [](S s) -> V { return s.text; })},
      {"index", Number, [](C c) { return c.Index(); }, {}},
      {"name", Text, [](C c) { return c.Array(); }, {}},
      {"picture", Text, [](C c) { return c.GetPicture().source; }, {}},
      {"listindex", Number, {}, OfList(Number, [](O o, L, int) -> V { return CurrentRow(o); })},
      {"listcount count", Number, {}, OfList(Number, [](O, L list, int) -> V { return list.size(); })},
      {"list",
       Text,
       {},
       OfList(Text, [](O, L list, int at) -> V { return list.value(at, "(no such row)"); })},
  };
  for (const Row& row : rows)
    if (QString::fromLatin1(row.names).split(QLatin1Char(' ')).contains(name.toLower())) return &row;
  return nullptr;
}

QString ChiefProperty(const Control& control) {
  const Kind kind = control.GetKind();
  if (kind == Kind::TextBox) return QStringLiteral("text");
  const bool caption = kind == Kind::Label || kind == Kind::Button || kind == Kind::Menu;
  return caption ? QStringLiteral("caption") : QStringLiteral("visible");
}

/// What the main window shows of a control must be what its state says: a person sees the window.
void CheckShown(const Target& target, const QString& name, const Value& state) {
  const QWidget& widget = *target.widget;
  const bool isVisible = name.compare(QLatin1String("visible"), Qt::CaseInsensitive) == 0;
  const bool isEnabled = name.compare(QLatin1String("enabled"), Qt::CaseInsensitive) == 0;
  if (!isVisible && !isEnabled) return;
  const Value shown{Boolean,
                    isVisible ? widget.isVisibleTo(widget.window()) : widget.isEnabledTo(widget.window())};
  if (shown.value != state.value)
    throw Failure(
        QStringLiteral("the window shows %1 of %2 as its state: %3").arg(name, target.name, state.Text()),
        QStringLiteral("the window has ") + shown.Text());
}

Found ReadControl(const Target& target, const QString& name) {
  const QString wanted = name.isEmpty() ? ChiefProperty(*target.control) : name;
  const Row* row = FindRow(wanted);
  if (!row || !row->ofControl) return std::nullopt;
  const Value value{row->kind, row->ofControl(*target.control)};
  if (!target.page && target.widget) CheckShown(target, wanted, value);
  return value;
}

Found ReadObject(const QObject& object, const QString& name, int index) {
  if (name.isEmpty()) {
    const Found text = TextOf(object);
    return text ? text : FirstOf(object, Number, {"value"});
  }
  const Row* row = FindRow(name);
  return row && row->ofObject ? row->ofObject(object, index) : std::nullopt;
}

Found ReadPage(const Page& page, const QString& name) {
  const QString wanted = name.toLower();
  if (wanted == QLatin1String("tag")) return Value{Text, page.tag};
  if (wanted == QLatin1String("caption")) return Value{Caption, page.form.caption};
  if (wanted == QLatin1String("visible")) return Value{Boolean, editing.FrontWindow() == page.window};
  return std::nullopt;
}

void RowsUnder(const QAbstractItemView& view, const QModelIndex& parent, QList<QModelIndex>& rows) {
  const auto* tree = qobject_cast<const QTreeView*>(&view);
  for (int row = 0; row < view.model()->rowCount(parent); ++row) {
    rows.append(view.model()->index(row, 0, parent));
    if (tree && tree->isExpanded(rows.last())) RowsUnder(view, QModelIndex(rows.last()), rows);
  }
}

}  // namespace

QList<QModelIndex> RowIndexes(const QAbstractItemView& view) {
  QList<QModelIndex> rows;
  RowsUnder(view, view.rootIndex(), rows);
  return rows;
}

QStringList RowsOf(const QWidget* list) {
  QStringList rows;
  if (const auto* box = qobject_cast<const QComboBox*>(list))
    for (int row = 0; row < box->count(); ++row) rows.append(box->itemText(row));
  if (const auto* view = qobject_cast<const QAbstractItemView*>(list))
    for (const QModelIndex& index : RowIndexes(*view)) rows.append(index.data().toString());
  return rows;
}

Value ReadProperty(const Target& target, const QString& name, int index) {
  const Found value = target.action                    ? ReadObject(*target.action, name, index)
                      : target.control                 ? ReadControl(target, name)
                      : target.isWindow && target.page ? ReadPage(*target.page, name)
                      : target.widget                  ? ReadObject(*target.widget, name, index)
                                                       : std::nullopt;
  if (!value)
    throw Failure(QStringLiteral("%1 has a property %2").arg(target.name, name),
                  QStringLiteral("it has none"));
  return *value;
}

}  // namespace quillane::scenario
