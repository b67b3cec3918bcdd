// The desk of the real desktop: Qt's boxes, windows, clipboard, printers and clock.
#pragma once
#include <QDialog>
#include <QElapsedTimer>
#include <functional>
#include <memory>
#include <vector>

#include "ui/desk.h"

namespace quillane {

/// Everything may be overridden: the tests' desk answers the questions and keeps the windows.
class QtDesk : public Desk {
 public:
  QtDesk();
  ~QtDesk() override;

  Answer MessageBox(const QString& text, const QString& title, Buttons buttons) override;
  QString InputBox(const QString& prompt, const QString& title, const QString& preset) override;
  QString FileToOpen(const QString& title, const FileKind& kind) override;
  QString FileToSave(const QString& title, const FileKind& kind, const QString& name) override;
  /// A name without a window does nothing.  A window that is open already comes to the front.
  void ShowWindow(const QString& name, Modality modality) override;
  /// Closing "frmMain" closes every window, the last opened first.
  void CloseWindow(const QString& name) override;
  bool WindowIsOpen(const QString& name) const override;
  QString ClipboardText() const override;
  void SetClipboardText(const QString& text) override;
  bool OpenExternally(const QString& target) override;
  QStringList PrinterNames() const override;
  bool HasPrinter(const QString& name) const override;
  QString DefaultPrinterName() const override;
  std::unique_ptr<Surface> BeginDocument(const QString& printer, const QString& title,
                                         const QString& pdfPath) override;
  QStringList ScreenFonts() const override;
  Picture LoadPicture(const QString& path) override;
  QByteArray WordDocument(const QString& title, const QString& report) override;
  int ScreenWidth() const override;
  QDateTime Now() const override;
  qint64 TickCount() const override;
  void ServeEvents() override;
  void Beep() override;

  /// The open window of that name; null when it is not open.
  QDialog* OpenWindow(const QString& name) const;
  /// The names of the open windows in the order in which they were opened.
  QStringList OpenWindows() const;
  /// Closes all windows but the main one, the last opened first.
  void CloseAllWindows();

  /// The parent of boxes and windows: the main window, once it stands.
  QWidget* frameWindow = nullptr;
  /// Set by the program: what showing and closing "frmMain" mean.
  std::function<void()> showFrame, closeFrame;

 protected:
  /// Runs a window's own event loop until it has been closed.
  virtual void RunModal(QDialog& window);

 private:
  struct Opened {
    QString name;
    std::unique_ptr<QDialog> window;
  };
  void Forget(const QString& name);
  QWidget* BoxParent() const;

  std::vector<Opened> opened_;
  QElapsedTimer sinceStart_;
};

}  // namespace quillane
