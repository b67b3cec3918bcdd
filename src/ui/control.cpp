#include "ui/control.h"

#include <algorithm>

namespace quillane {

Control::Control(Form& form, Kind kind, QString array, int index)
    : form_(&form), kind_(kind), index_(index), array_(std::move(array)) {}

QString Control::FullName() const {
  const QString name = form_->name + QLatin1Char('.') + array_;
  return index_ < 0 ? name : name + QLatin1Char('(') + QString::number(index_) + QLatin1Char(')');
}

namespace {
bool MovesPixels(Aspect aspect) {
  return aspect == Aspect::Geometry || aspect == Aspect::Visible || aspect == Aspect::Text ||
         aspect == Aspect::Caption || aspect == Aspect::Font;
}
}  // namespace

template <class T>
void Control::Change(T& field, const T& value, Aspect aspect) {
  if (field == value) return;
  FormObserver* observer = form_->observer;
  if (observer && MovesPixels(aspect)) observer->BeforeChange(*this, aspect);
  field = value;
  if (aspect == Aspect::Caption || aspect == Aspect::Font) labelWidth_ = -1;
  if (observer) observer->AfterChange(*this, aspect);
}

float Control::Width() const {
  if (kind_ != Kind::Label) return width_;
  if (labelWidth_ < 0) labelWidth_ = TextWidth(font_, caption_);
  return labelWidth_;
}

float Control::Height() const {
  return kind_ == Kind::Label ? MetricsOf(font_).height : height_;
}

void Control::SetLeft(float value) {
  Change(left_, value, Aspect::Geometry);
}
void Control::SetTop(float value) {
  Change(top_, value, Aspect::Geometry);
}
void Control::SetWidth(float value) {
  Change(width_, value, Aspect::Geometry);
}
void Control::SetHeight(float value) {
  Change(height_, value, Aspect::Geometry);
}
void Control::SetVisible(bool value) {
  Change(visible_, value, Aspect::Visible);
}
void Control::SetTag(const QString& value) {
  Change(tag_, value, Aspect::State);
}

void Control::SetShown(bool shown) {
  SetTag(shown ? QString() : QStringLiteral("Hide"));
  SetVisible(shown);
}

void Control::SetText(const QString& value) {
  if (text_ == value) return;
  const auto length = static_cast<int>(value.size());
  selStart_ = std::min(selStart_, length);
  selLength_ = std::min(selLength_, length - selStart_);
  Change(text_, value, Aspect::Text);
  if (form_->textChanged) form_->textChanged(*this);
}

void Control::Typed(const QString& text, int caret) {
  selStart_ = caret;
  selLength_ = 0;
  if (text_ == text) return;
  Change(text_, text, Aspect::Text);
  if (form_->textChanged) form_->textChanged(*this);
}

void Control::SetCaption(const QString& value) {
  Change(caption_, value, Aspect::Caption);
}
void Control::SetToolTip(const QString& value) {
  Change(toolTip_, value, Aspect::State);
}
void Control::SetFont(const Font& value) {
  Change(font_, value, Aspect::Font);
}

void Control::SetFontName(const QString& value) {
  Font font = font_;
  font.name = value;
  SetFont(font);
}
void Control::SetFontSize(float value) {
  Font font = font_;
  font.size = value;
  SetFont(font);
}
void Control::SetFontBold(bool value) {
  Font font = font_;
  font.bold = value;
  SetFont(font);
}
void Control::SetFontItalic(bool value) {
  Font font = font_;
  font.italic = value;
  SetFont(font);
}
void Control::SetFontUnderline(bool value) {
  Font font = font_;
  font.underline = value;
  SetFont(font);
}

void Control::SetForeColor(Color value) {
  Change(foreColor_, value, Aspect::Colour);
}
void Control::SetBackColor(Color value) {
  Change(backColor_, value, Aspect::Colour);
}
void Control::SetBackStyle(Backing value) {
  Change(backStyle_, value, Aspect::Colour);
}
void Control::SetPicture(const Picture& value) {
  Change(picture_, value, Aspect::Picture);
}
void Control::SetEnabled(bool value) {
  Change(enabled_, value, Aspect::State);
}
void Control::SetChecked(bool value) {
  Change(checked_, value, Aspect::State);
}

void Control::SetSelStart(int value) {
  SetSelection(value, 0);
}

void Control::SetSelection(int start, int length) {
  const auto size = static_cast<int>(text_.size());
  start = std::clamp(start, 0, size);
  length = std::clamp(length, 0, size - start);
  selStart_ = start;
  selLength_ = length;
  // Told even when nothing changed here: an editor may have moved its caret meanwhile.
  if (form_->observer) form_->observer->AfterChange(*this, Aspect::Caret);
}

void Control::ReplaceSelection(const QString& value) {
  const int start = selStart_;
  QString text = text_;
  text.replace(start, selLength_, value);
  SetText(text);
  SetSelStart(start + static_cast<int>(value.size()));
}

}  // namespace quillane
