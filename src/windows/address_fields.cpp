#include "windows/address_fields.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTextBlock>

#include "address/field_commands.h"
#include "model/proposal.h"
#include "qt/dialog_parts.h"
#include "qt/painter_surface.h"

namespace quillane {

namespace {

AddressBook& book = addressBook;

/// A caret and what is selected, in characters of the shown text.
struct Selection {
  int start = 0, length = 0;
  bool operator==(const Selection&) const = default;
};

/// One look at a field, whether it has one line or many.
class Editor {
 public:
  explicit Editor(QWidget* widget)
      : line_(qobject_cast<QLineEdit*>(widget)), notes_(qobject_cast<QPlainTextEdit*>(widget)) {}

  QString Text() const {
    if (line_) return line_->text();
    // The plain form would turn a hard blank into a soft one.
    return notes_->document()
        ->toRawText()
        .replace(QChar::ParagraphSeparator, u'\n')
        .replace(QChar::LineSeparator, u'\n');
  }
  void SetText(const QString& text) const { line_ ? line_->setText(text) : notes_->setPlainText(text); }

  int Caret() const { return line_ ? line_->cursorPosition() : notes_->textCursor().position(); }

  Selection Selected() const {
    if (notes_) {
      const QTextCursor cursor = notes_->textCursor();
      return {cursor.selectionStart(), cursor.selectionEnd() - cursor.selectionStart()};
    }
    if (line_->hasSelectedText()) return {line_->selectionStart(), line_->selectionLength()};
    return {line_->cursorPosition(), 0};
  }

  void Select(Selection selection) const {
    if (line_ && selection.length > 0) return line_->setSelection(selection.start, selection.length);
    if (line_) return line_->setCursorPosition(selection.start);
    QTextCursor cursor = notes_->textCursor();
    cursor.setPosition(selection.start);
    cursor.setPosition(selection.start + selection.length, QTextCursor::KeepAnchor);
    notes_->setTextCursor(cursor);
  }

  bool IsNotes() const { return notes_; }
  /// The caret stands where Up has nowhere to go.
  bool OnFirstLine() const {
    if (line_) return true;
    const QTextCursor cursor = notes_->textCursor();
    const QTextLayout* layout = cursor.block().layout();
    return cursor.blockNumber() == 0 &&
           layout->lineForTextPosition(cursor.positionInBlock()).lineNumber() <= 0;
  }

 private:
  QLineEdit* line_;
  QPlainTextEdit* notes_;
};

// A record's line break is two characters, a shown one is one.

QString ShownText(const QString& text) {
  return QString(text).replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(u'\r', u'\n');
}

int ShownPlace(const QString& text, int place) {
  return static_cast<int>(ShownText(text.left(place)).size());
}

/// The way back: how many characters of `text` the first `shown` ones stand for.
int StoredPlace(const QString& text, int shown) {
  int place = 0;
  for (; shown > 0 && place < text.size(); --shown)
    place += QStringView(text).sliced(place).startsWith(QLatin1String("\r\n")) ? 2 : 1;
  return place;
}

/// White is the desktop's own ground for what is written; the other colours mean something.
QPalette PaletteOf(Color ground) {
  QPalette palette;
  if (ground == colors::White) return palette;
  palette.setColor(QPalette::Base, ToQColor(ground));
  palette.setColor(QPalette::Text, Qt::black);
  return palette;
}

QString FieldName(const char* array, int index) {
  return QStringLiteral("%1(%2)").arg(QLatin1String(array)).arg(index);
}

}  // namespace

AddressFields::AddressFields(std::function<void()> changed) : changed_(std::move(changed)) {
  setFrameShape(QFrame::NoFrame);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setFocusPolicy(Qt::NoFocus);
  setWidget(MakeFields());
  setWidgetResizable(true);
}

QSize AddressFields::sizeHint() const {
  return widget()->sizeHint();
}

QWidget* AddressFields::MakeFields() {
  auto* fields = new QWidget;
  auto* grid = new QGridLayout(fields);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(10);
  grid->setVerticalSpacing(3);
  grid->setColumnStretch(0, 1);
  grid->setColumnStretch(1, 1);
  for (int i = 0; i < field::Count; ++i) AddField(*grid, i);
  return fields;
}

void AddressFields::AddField(QGridLayout& grid, int index) {
  QWidget* box = nullptr;
  if (index == field::Notes) {
    constexpr int lines = 5;
    auto* notes = new LinesBox(lines);
    notes->setTabChangesFocus(true);
    notes->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    notes->viewport()->installEventFilter(this);
    connect(notes, &QPlainTextEdit::textChanged, this, [this, index] { Typed(index); });
    box = notes;
  } else {
    auto* line = new QLineEdit;
    connect(line, &QLineEdit::textChanged, this, [this, index] { Typed(index); });
    box = line;
  }
  box->setMouseTracking(true);
  box->installEventFilter(this);
  txt_[index] = Named(box, FieldName("txt", index));
  lblInfo_[index] = PlainLabel(FieldName("lblInfo", index), QString());
  lblInfo_[index]->setBuddy(box);

  // Telephones and the date stand in pairs; the website of the business has its row alone.
  struct Place {
    int row, column, columns;
  };
  const bool alone = book.CompanyInfoMode && index == field::Cell;
  const Place place = index < field::Phone ? Place{index, 0, 2}
                      : index < field::Contact
                          ? Place{4 + (index - field::Phone) / 2, index % 2, alone ? 2 : 1}
                          : Place{index - 2, 0, 2};
  constexpr int rowsOfField = 3, gap = 6;
  const int top = place.row * rowsOfField;
  if (top > 0) grid.setRowMinimumHeight(top - 1, gap);
  grid.addWidget(lblInfo_[index], top, place.column, 1, place.columns);
  grid.addWidget(box, top + 1, place.column, 1, place.columns);
  if (index == field::Notes) grid.setRowStretch(top + 1, 1);
  const bool shows = !book.CompanyInfoMode || (index != field::EventDate && index != field::Notes);
  box->setVisible(shows);
  lblInfo_[index]->setVisible(shows);
}

void AddressFields::ShowState() {
  const Scoped showing(showing_, true);
  for (int i = 0; i < field::Count; ++i) {
    ShowField(i);
    ShowSelection(i);
  }
  FocusWantedField();
}

void AddressFields::ShowField(int index) {
  const AddressField& state = book.txt[index];
  QWidget* box = txt_[index];
  if (shown_[index] != state.Text) {
    shown_[index] = state.Text;
    Editor(box).SetText(ShownText(state.Text));
  }
  box->setPalette(PaletteOf(state.BackColor));
  box->setToolTip(state.ToolTipText);
  // The mouse replaces the tip; what a colour means is still to be had by those who cannot see it.
  box->setAccessibleDescription(state.ToolTipText);
  const QString& label = book.lblInfo[index];
  if (lblInfo_[index]->text() == label) return;
  lblInfo_[index]->setText(label);
  box->setAccessibleName(label);
}

void AddressFields::ShowSelection(int index) {
  const AddressField& state = book.txt[index];
  const int start = ShownPlace(state.Text, state.SelStart);
  const int end = ShownPlace(state.Text, state.SelStart + state.SelLength);
  const Selection wanted = {start, end - start};
  if (const Editor box(txt_[index]); box.Selected() != wanted) box.Select(wanted);
}

void AddressFields::TakeSelections() {
  for (int i = 0; i < field::Count; ++i) {
    AddressField& state = book.txt[i];
    const Selection shown = Editor(txt_[i]).Selected();
    state.SelStart = StoredPlace(state.Text, shown.start);
    state.SelLength = StoredPlace(state.Text, shown.start + shown.length) - state.SelStart;
  }
}

void AddressFields::Typed(int index) {
  if (showing_) return;
  const Editor box(txt_[index]);
  const QString text = box.Text();
  const int caret = box.Caret();
  SetField(index, text);
  // What the code page lacks has become its kin, and a pasted line break a blank: then the field is written
  // again.
  if (ShownText(book.txt[index].Text) == text) {
    shown_[index] = book.txt[index].Text;
  } else {
    const Scoped showing(showing_, true);
    ShowField(index);
    box.Select({static_cast<int>(ShownText(FieldInput(index, text.left(caret))).size()), 0});
  }
  TakeSelections();
  changed_();
}

bool AddressFields::eventFilter(QObject* watched, QEvent* event) {
  const int index = FieldOf(watched);
  if (index < 0) return QScrollArea::eventFilter(watched, event);
  switch (event->type()) {
    case QEvent::KeyPress:
      return KeyPressed(index, *static_cast<QKeyEvent*>(event));
    case QEvent::KeyRelease:
      book.FocusCaret = StoredPlace(book.txt[index].Text, Editor(txt_[index]).Caret());
      return false;
    case QEvent::FocusIn:
      book.FocusField = index;
      ensureWidgetVisible(txt_[index]);
      return false;
    case QEvent::MouseMove:
      return Hovered(index);
    case QEvent::MouseButtonDblClick:
      TakeSelections();
      DoubleClickField(index);
      changed_();
      return true;
    default:
      return false;
  }
}

bool AddressFields::KeyPressed(int index, const QKeyEvent& event) {
  const bool plain = !(event.modifiers() & ~Qt::KeypadModifier);
  const Editor box(txt_[index]);
  switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return !box.IsNotes() && Walk(index, FieldBelow(index));
    case Qt::Key_Down:
      return plain && !box.IsNotes() && Walk(index, FieldBelow(index));
    case Qt::Key_Up:
      return plain && box.OnFirstLine() && Walk(index, FieldAbove(index));
    default:
      return false;
  }
}

/// True: the key has been dealt with, also at the ends of the fields.
bool AddressFields::Walk(int from, int to) {
  if (from != to) txt_[to]->setFocus();
  return true;
}

bool AddressFields::Hovered(int index) {
  if (const QString tip = FieldTip(index); !tip.isEmpty() && book.txt[index].ToolTipText != tip) {
    book.txt[index].ToolTipText = tip;
    txt_[index]->setToolTip(tip);
  }
  return false;
}

void AddressFields::FocusWantedField() {
  if (!book.FocusWanted || !txt_[book.FocusField]->isVisible()) return;
  book.FocusWanted = false;
  txt_[book.FocusField]->setFocus();
  Editor(txt_[book.FocusField]).Select({ShownPlace(book.txt[book.FocusField].Text, book.FocusCaret), 0});
}

int AddressFields::FieldOf(const QObject* widget) const {
  for (int i = 0; i < field::Count; ++i)
    if (widget == txt_[i]) return i;
  const auto* notes = qobject_cast<const QPlainTextEdit*>(txt_[field::Notes]);
  return notes && widget == notes->viewport() ? field::Notes : -1;
}

}  // namespace quillane
