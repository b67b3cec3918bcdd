// Controls as plain objects.  A page's areas, labels and marks and the frame's own buttons and labels are all
// Controls; the windows draw them and never keep state of their own.
#pragma once
#include <QString>
#include <functional>

#include "ui/font.h"
#include "ui/surface.h"

namespace quillane {

/// Whether a control's ground covers what lies under it.
enum class Backing { Transparent = 0, Opaque = 1 };
enum class Kind { TextBox, Label, Image, Line, Picture, Shape, Button, Menu };
/// What about a control has changed, so that a viewer does no more than it must.
enum class Aspect { Geometry, Visible, Text, Caption, Colour, Font, Caret, Picture, State };

class Control;

/// Whoever shows a form is told of each change after it has happened; Geometry, Visible, Text, Caption and
/// Font are also told before, so that the old rectangle is known to be stale.
class FormObserver {
 public:
  virtual ~FormObserver() = default;
  virtual void BeforeChange(Control& control, Aspect aspect) = 0;
  virtual void AfterChange(Control& control, Aspect aspect) = 0;
};

/// What the controls of one window share.
struct Form {
  QString name;  ///< "frmP2", "frmMain"
  QString caption;
  FormObserver* observer = nullptr;           ///< not owned
  std::function<void(Control&)> textChanged;  ///< runs after a text box's text has changed
};

class Control {
 public:
  /// `index` is -1 for a control that is not part of an array.
  Control(Form& form, Kind kind, QString array, int index);

  Form& Owner() const { return *form_; }
  Kind GetKind() const { return kind_; }
  const QString& Array() const { return array_; }  ///< "txt", "lbl", "cmdReCalc"
  int Index() const { return index_; }
  QString FullName() const;  ///< "frmP2.txt(35)", "frmMain.cmdReCalc"

  // Places and sizes are twips.  A label is as wide as its caption; a line goes from (Left, Top) over (Width,
  // Height).
  float Left() const { return left_; }
  float Top() const { return top_; }
  float Width() const;
  float Height() const;
  void SetLeft(float value);
  void SetTop(float value);
  void SetWidth(float value);
  void SetHeight(float value);

  bool Visible() const { return visible_; }
  void SetVisible(bool value);
  const QString& Tag() const { return tag_; }
  void SetTag(const QString& value);
  /// Shown and Tag together: a control that does not show carries the Tag "Hide", so that it does not print
  /// either.
  void SetShown(bool shown);
  bool Hidden() const { return tag_ == QLatin1String("Hide"); }

  const QString& Text() const { return text_; }
  /// Writing a text runs the form's change handler as typing does; writing an equal text does nothing.
  void SetText(const QString& value);
  const QString& Caption() const { return caption_; }
  void SetCaption(const QString& value);
  const QString& ToolTip() const { return toolTip_; }
  void SetToolTip(const QString& value);

  const Font& GetFont() const { return font_; }
  void SetFont(const Font& value);
  void SetFontName(const QString& value);
  void SetFontSize(float value);
  void SetFontBold(bool value);
  void SetFontItalic(bool value);
  void SetFontUnderline(bool value);
  Color ForeColor() const { return foreColor_; }
  Color BackColor() const { return backColor_; }
  void SetForeColor(Color value);
  void SetBackColor(Color value);
  Backing BackStyle() const {
    return backStyle_;
  }  ///< of a label; every other kind shows its BackColor anyway
  void SetBackStyle(Backing value);

  int SelStart() const { return selStart_; }
  int SelLength() const { return selLength_; }
  void SetSelStart(int value);  ///< also drops the selection, as moving a caret does
  void SetSelection(int start, int length);
  QString SelText() const { return text_.mid(selStart_, selLength_); }
  void ReplaceSelection(const QString& value);  ///< the caret goes behind it

  const Picture& GetPicture() const { return picture_; }
  void SetPicture(const Picture& value);

  bool Enabled() const { return enabled_; }
  void SetEnabled(bool value);
  bool Checked() const { return checked_; }
  void SetChecked(bool value);
  bool Locked() const { return locked_; }
  void SetLocked(bool value) { locked_ = value; }

  /// The viewer's way to write what a person typed: as SetText, with the caret that the editor has.
  void Typed(const QString& text, int caret);

 private:
  template <class T>
  void Change(T& field, const T& value, Aspect aspect);

  Form* form_;
  Kind kind_;
  bool visible_ = true;
  bool enabled_ = true;
  bool checked_ = false;
  bool locked_ = false;
  int index_;
  QString array_;
  float left_ = 0, top_ = 0, width_ = 0, height_ = 0;
  Color foreColor_ = colors::Black;
  Color backColor_ = colors::White;
  Backing backStyle_ = Backing::Transparent;
  QString tag_, text_, caption_, toolTip_;
  Font font_;
  int selStart_ = 0, selLength_ = 0;
  Picture picture_;
  mutable float labelWidth_ = -1;  ///< cache of a label's measured width; -1 when stale
};

}  // namespace quillane
