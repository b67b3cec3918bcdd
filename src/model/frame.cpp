#include "model/frame.h"

#include "platform/runtime_error.h"

namespace quillane {

namespace {
std::unique_ptr<Frame>& TheFrame() {
  static std::unique_ptr<Frame> frame;
  return frame;
}

const QString ResumeCaption = QStringLiteral("Resume Editing");
}  // namespace

Frame::Frame() {
  form.name = QStringLiteral("frmMain");
  form.caption = QStringLiteral("Quillane");
  Add(Kind::Label, "lblPage", "PAGE");
  Add(Kind::Label, "lblDir", "Loading Fonts...");
  Add(Kind::Label, "lblEvent", "Title: ");
  Add(Kind::Label, "lblTextPos", "Text Position =");
  Add(Kind::Label, "lblHighestPage", "Highest Page");
  Add(Kind::Label, "lblCurPos", "Cursor Location =");
  Add(Kind::Label, "lblTextNum", "Text Area =");
  Add(Kind::Label, "lblTotal", "Running Total =");
  Add(Kind::Label, "lblStrip", "").SetVisible(false);
  Add(Kind::Label, "lblStatus", "").SetVisible(false);
  struct Item {
    const char *name, *text;
  };
  constexpr Item images[] = {{"imgNew", "Create New File"},
                             {"imgOpen", "Open existing file"},
                             {"imgFootNotes", "Show Footnotes"},
                             {"imgSave", "Save Current File"},
                             {"imgSaveAs", "Save File as..."},
                             {"imgPrint", "Print All Pages"},
                             {"imgSearch", "Search for..."},
                             {"imgSpellCheck", "Check Spelling"},
                             {"imgTime", ""}};
  for (const Item& image : images)
    Add(Kind::Image, image.name, "").SetToolTip(QString::fromLatin1(image.text));
  constexpr Item pages[] = {{"imgPage(0)", "Page 1"},     {"imgPage(1)", "Page 2"},
                            {"imgPage(2)", "Page 3"},     {"imgPage(3)", "Page 4"},
                            {"imgPage(4)", "Page 5"},     {"imgPage(5)", "Totals and Contract Page"},
                            {"imgPage(6)", "Page 6 Copy"}};
  for (const Item& image : pages)
    Add(Kind::Image, image.name, "").SetToolTip(QString::fromLatin1(image.text));
  struct ButtonItem {
    const char *name, *caption, *tip;
  };
  constexpr ButtonItem buttons[] = {{"cmdTaxRate", "Sales Tax Rate", ""},
                                    {"cmdReCalc", "Recalculate", "Shortcut = F11"},
                                    {"cmdPreview", "Print Preview", "Shortcut = CTRL + R"},
                                    {"cmdClearMem", "Clear Selected", "Shortcut = CTRL + D"}};
  for (const ButtonItem& button : buttons) {
    Control& control = Add(Kind::Button, button.name, button.caption);
    control.SetToolTip(QString::fromLatin1(button.tip));
    control.SetBackColor(colors::ButtonFace);
  }
  for (int k = 0; k < 3; ++k) {
    Control& button = Add(Kind::Button, QStringLiteral("cmdStrip(%1)").arg(k), "");
    button.SetBackColor(colors::ButtonFace);
    button.SetVisible(false);
  }
}

Control& Frame::Add(Kind kind, const QString& name, const QString& caption) {
  auto control = std::make_unique<Control>(form, kind, name, -1);
  control->SetCaption(caption);
  Control& added = *control;
  controls_[name] = std::move(control);
  return added;
}

Control& Frame::AddMenu(const QString& name, const QString& caption, Entry entry) {
  if (entry == Entry::WithoutCommand) withoutCommand_.insert(name);
  return Add(Kind::Menu, name, caption);
}

Control* Frame::Find(const QString& name) {
  const auto found = controls_.find(name);
  return found == controls_.end() ? nullptr : found->second.get();
}

Control& Frame::operator[](const QString& name) {
  if (Control* control = Find(name)) return *control;
  Raise(errors::InvalidProcedureCall, name);
}

Frame& frame() {
  if (!TheFrame()) CreateFrame();
  return *TheFrame();
}

void CreateFrame() {
  TheFrame() = std::make_unique<Frame>();
}

void EnableMenu(const QString& name, bool enabled) {
  if (Control* entry = frame().Find(name)) entry->SetEnabled(enabled && frame().HasCommand(name));
}
void CheckMenu(const QString& name, bool checked) {
  if (Control* entry = frame().Find(name)) entry->SetChecked(checked);
}

void MarkTotalsStale() {
  frame()["cmdReCalc"].SetBackColor(colors::Red);
}
void MarkTotalsFresh() {
  frame()["cmdReCalc"].SetBackColor(colors::ButtonFace);
}
bool TotalsAreStale() {
  return frame()["cmdReCalc"].BackColor() == colors::Red;
}

bool InPreview() {
  return frame()["cmdPreview"].Caption() == ResumeCaption;
}
void MarkPreview(Preview preview) {
  frame()["cmdPreview"].SetCaption(preview == Preview::Shows ? ResumeCaption
                                                             : QStringLiteral("Print Preview"));
}

}  // namespace quillane
