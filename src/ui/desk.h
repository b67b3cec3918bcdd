// All that leaves the program goes through Desk, so that a test can answer questions, move the clock and
// count sheets.
#pragma once
#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QStringList>
#include <functional>
#include <memory>
#include <optional>

#include "ui/surface.h"

namespace quillane {

enum class Answer { Ok, Yes, No, Cancel };
enum class Buttons { Ok, YesNo, YesNoCancel };
enum class Modality { Modal, Modeless };

/// Files of one kind, as a dialog lists them: {"Contacts", "vcf"}.
struct FileKind {
  QString name, extension;
};

class Desk {
 public:
  virtual ~Desk() = default;
  virtual Answer MessageBox(const QString& text, const QString& title, Buttons buttons) = 0;
  /// What was typed, or empty for Cancel.
  virtual QString InputBox(const QString& prompt, const QString& title, const QString& preset) = 0;
  /// The path of a file that is there, or of one to write, which the user has agreed to replace if it is;
  /// empty for Cancel.
  virtual QString FileToOpen(const QString& title, const FileKind& kind) {
    return InputBox(kind.name, title, {});
  }
  virtual QString FileToSave(const QString& title, const FileKind& kind, const QString& name) {
    return InputBox(kind.name, title, name);
  }
  /// Shows the window named "frmTax" and so on.  Modal returns when it has been closed.
  virtual void ShowWindow(const QString& name, Modality modality) = 0;
  virtual void CloseWindow(const QString& name) = 0;
  virtual bool WindowIsOpen(const QString& name) const = 0;
  virtual QString ClipboardText() const = 0;
  virtual void SetClipboardText(const QString& text) = 0;
  /// Opens a file or web page with the desktop's program.  False when nothing can.
  virtual bool OpenExternally(const QString& target) = 0;
  virtual QStringList PrinterNames() const = 0;
  /// True for a name that PrinterNames has; asks the system only where that is needed.
  virtual bool HasPrinter(const QString& name) const { return PrinterNames().contains(name); }
  /// The system's own default printer; empty where there is none.
  virtual QString DefaultPrinterName() const = 0;
  /// Starts a document of one letter page on a printer of that name.  Throws 482.  For "PDF File", `pdfPath`
  /// is the file to write.
  virtual std::unique_ptr<Surface> BeginDocument(const QString& printer, const QString& title,
                                                 const QString& pdfPath) = 0;
  virtual QStringList ScreenFonts() const = 0;
  /// Reads a picture's natural size.  Throws 53 or 481.
  virtual Picture LoadPicture(const QString& path) = 0;
  /// A report as the bytes of an OpenDocument text.
  virtual QByteArray WordDocument(const QString& title, const QString& report) = 0;
  virtual int ScreenWidth() const = 0;  ///< pixels
  virtual QDateTime Now() const = 0;
  virtual qint64 TickCount() const = 0;  ///< milliseconds
  virtual void ServeEvents() = 0;
  virtual void Beep() = 0;
};

/// The desk in use; set once before anything else runs.
Desk& desk();
void SetDesk(Desk* desk);

/// One box with an OK button.
void Tell(const QString& text, const QString& title = QStringLiteral("Quillane"));
bool AskYesNo(const QString& text, const QString& title);

}  // namespace quillane
