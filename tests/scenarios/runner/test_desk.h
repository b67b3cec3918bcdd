// The desk of a scenario: real windows, but boxes are answered from the script, the clock stands, the screen
// is as large as told, and every printer collects its sheets.
#pragma once
#include <QDateTime>
#include <QStringList>
#include <vector>

#include "boxes.h"
#include "qt/qt_desk.h"

namespace quillane::scenario {

/// One document that a printer was sent.
struct Printed {
  QString printer, title;
  QString pdf;  ///< the collected file
};

class TestDesk : public QtDesk {
 public:
  /// `spool` is the folder in which the sheets are collected.
  explicit TestDesk(QString spool) : spool_(std::move(spool)) {}

  Boxes boxes;
  QDateTime now{QDate(2026, 11, 22), QTime(10, 30)};
  int screenWidth = 1280, screenHeight = 1024;  ///< pixels
  QStringList printers{QStringLiteral("Office Laser")};
  QString clipboard;
  QStringList opened;            ///< what was given to the desktop's programs
  std::vector<Printed> printed;  ///< in the order in which the documents ended
  int beeps = 0;

  /// True while the program serves the event loop in the middle of something: the script waits meanwhile.
  bool Serving() const {
    return serving_ > 0 && !(actsDuringSplash && WindowIsOpen(QStringLiteral("frmSplash")));
  }
  bool actsDuringSplash = false;

  Answer MessageBox(const QString& text, const QString& title, Buttons buttons) override {
    return boxes.Ask(text, title, buttons);
  }
  QString InputBox(const QString& prompt, const QString& title, const QString& preset) override {
    return boxes.Input(prompt, title, preset);
  }
  QString FileToOpen(const QString& title, const FileKind& kind) override;
  QString FileToSave(const QString& title, const FileKind& kind, const QString& name) override;
  QString ClipboardText() const override { return clipboard; }
  void SetClipboardText(const QString& text) override { clipboard = text; }
  bool OpenExternally(const QString& target) override;
  /// As told, and "PDF File", which is always there.
  QStringList PrinterNames() const override;
  QString DefaultPrinterName() const override;
  std::unique_ptr<Surface> BeginDocument(const QString& printer, const QString& title,
                                         const QString& pdfPath) override;
  int ScreenWidth() const override { return screenWidth; }
  QDateTime Now() const override { return now; }
  /// Runs ahead with each look, so that no scenario waits for real time.
  qint64 TickCount() const override { return ticks_ += 50; }
  void ServeEvents() override;
  void Beep() override { ++beeps; }

 private:
  QString spool_;
  mutable qint64 ticks_ = 0;
  int serving_ = 0;
};

}  // namespace quillane::scenario
