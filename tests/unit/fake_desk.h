// A desk without a display: answers from a list, keeps what was said.
#pragma once
#include <QQueue>
#include <QStringList>

#include "ui/desk.h"

namespace quillane::test {

struct Said {
  QString text, title;
};

class FakeDesk : public Desk {
 public:
  FakeDesk() { SetDesk(this); }

  QQueue<Answer> answers;  ///< for questions; when empty, Cancel or No
  QQueue<QString> inputs;  ///< for input boxes; when empty, Cancel
  QList<Said> said;        ///< every box, questions and input prompts included
  QString clipboard;
  QStringList printers, shown, opened;
  bool opens = true;  ///< whether the desktop has a program for what is opened
  QDateTime now{QDate(2026, 11, 22), QTime(10, 30)};

  Answer MessageBox(const QString& text, const QString& title, Buttons buttons) override {
    said.append({text, title});
    if (buttons == Buttons::Ok) return Answer::Ok;
    if (!answers.isEmpty()) return answers.dequeue();
    return buttons == Buttons::YesNo ? Answer::No : Answer::Cancel;
  }
  QString InputBox(const QString& prompt, const QString& title, const QString&) override {
    said.append({prompt, title});
    return inputs.isEmpty() ? QString() : inputs.dequeue();
  }
  void ShowWindow(const QString& name, Modality) override { shown.append(name); }
  void CloseWindow(const QString& name) override { shown.removeAll(name); }
  bool WindowIsOpen(const QString& name) const override { return shown.contains(name); }
  QString ClipboardText() const override { return clipboard; }
  void SetClipboardText(const QString& text) override { clipboard = text; }
  bool OpenExternally(const QString& target) override {
    opened.append(target);
    return opens;
  }
  QStringList PrinterNames() const override { return printers; }
  QString DefaultPrinterName() const override { return printers.value(0); }
  std::unique_ptr<Surface> BeginDocument(const QString&, const QString&, const QString&) override {
    return nullptr;
  }
  QStringList ScreenFonts() const override {
    return {QStringLiteral("Arial"), QStringLiteral("Times New Roman")};
  }
  Picture LoadPicture(const QString& path) override { return {path, 1500, 1500}; }
  QByteArray WordDocument(const QString& title, const QString& report) override {
    return (title + u'|' + report).toUtf8();
  }
  int ScreenWidth() const override { return 1280; }
  QDateTime Now() const override { return now; }
  qint64 TickCount() const override { return 0; }
  void ServeEvents() override {}
  void Beep() override {}

  QString LastSaid() const { return said.isEmpty() ? QString() : said.last().text; }
};

}  // namespace quillane::test
