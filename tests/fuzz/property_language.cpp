#include "property_language.h"

#include <QDir>
#include <QFile>
#include <QScopeGuard>
#include <stdexcept>

#include "files/format_file.h"
#include "files/new_proposal.h"
#include "files/property_file.h"
#include "files/property_lines.h"
#include "model/proposal.h"
#include "model/upcalls.h"
#include "pages/defaults.h"
#include "unit/fake_desk.h"

namespace quillane::test {

namespace {

void Require(bool holds, const char* what) {
  if (!holds) throw std::logic_error(what);
}

qsizetype Below(std::mt19937& random, qsizetype bound) {
  return static_cast<qsizetype>(random() % static_cast<unsigned long>(bound));
}

const QByteArrayList& Seeds() {
  static const QByteArrayList seeds = {
      "frmP1.txt(20).FontBold=True",
      "frmP2.txt(3).Text=Roses, .FontBold=True",
      "frmP1.txt(2).Text=Emily Carter",
      "frmP4.txt(50).TaxExempt=True",
      "frmP2.txq(2).QtyBox=True",
      "frmP2.txq(34).QtyBox=True .QtyValue=9 .AmtValue=9.50",
      "frmP3.txq(3).QtyBox=False .QtyValue= .AmtValue=",
      "frmP1.lbl(12).Left=10350 .Top=3060 .Caption=Ceremony Time .FontName=Times New Roman .FontBold=True "
      ".FontSize=9.75 .ForeColor=8388608 .FontItalic=True .FontUnderline=False",
      "frmP6.lbl(17).Left=720 .Top=3960 .Caption=Deposits (no .FontName=) .FontName=Arial .FontBold=False "
      ".FontSize=9 .ForeColor=0",
      "frmP1.lbl(45).Left=900 .Top=14900 .Caption=Autumn Fair .FontName=Arial .FontBold=True .FontSize=9 "
      ".ForeColor=-2147483640 .FontItalic=False .FontUnderline=True",
      "frmP1.pic.Picture=events.jpg .Left=720 .Top=540.5",
      "UDP.FontName=Times New Roman .FontSize=9 .FontColor=255 .FontItalic=False",
      "frmP9.txt(1).FontBold=True",
      ""};
  return seeds;
}

// What a number, a key or a name may be replaced by.
QByteArray Piece(std::mt19937& random) {
  static const QByteArrayList pieces = {"-1",          "99999", "1e38", "1E-45",        "1e99", "nan",
                                        "True",        "(",     ")",    " .",           "=",    "frmP6",
                                        " .FontName=", "\r",    "\xA5", "\xA7",         "\0",   "65",
                                        " .AmtValue=", "X:\\",  "UDP",  "Proposal for "};
  return pieces[Below(random, pieces.size())];
}

QByteArray Damaged(QByteArray line, std::mt19937& random) {
  for (auto times = Below(random, 3); times > 0 && !line.isEmpty(); --times) {
    const qsizetype at = Below(random, line.size());
    switch (Below(random, 4)) {
      case 0:
        line.remove(at, 1 + Below(random, 6));
        break;
      case 1:
        line.insert(at, Piece(random));
        break;
      case 2:
        line[at] = static_cast<char>(Below(random, 256));
        break;
      default:
        line.replace(at, 1 + Below(random, 6), Piece(random));
    }
  }
  return line;
}

void StartAfresh() {
  const QString programFolder = prefs.ProgramFolder;
  ResetState();
  prefs.ProgramFolder = programFolder;
  prefs.ProposalFolder = programFolder + QStringLiteral("Wedding Proposals/");
  QDir().mkpath(prefs.ProposalFolder);
  prefs.CurrencySymbol = QStringLiteral("$");
  upcalls() = {};
  upcalls().PropertyLinesNow = PropertyLinesNow;
  upcalls().OpenFormat = OpenFormatFile;
  SetUpPages();
  StartNewFile();
}

// A line may stop the parse by these numbers; a picture on a drive that is not set up also by 76.
bool IsExpected(const QString& report) {
  for (const int number : {5, 6, 9, 13})
    if (report.contains(QStringLiteral("\nError Number: %1\n").arg(number))) return true;
  return report.contains(QStringLiteral("in ParseFormatFile.\nError Number: 76\n"));
}

void RequireQuiet(const FakeDesk& desk) {
  for (const Said& box : desk.said)
    Require(IsExpected(box.text), "a report is of a kind that a line can have");
  Require(!editing.Parsing && !editing.RebuildingPages && !editing.NewFile, "the guards are down");
}

// Not as the program writes: waiting for the disk would cost more than all the reading.
void Write(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  Require(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size(), "the input is written");
}

QStringList AsFormat(const QByteArray& file) {
  StartAfresh();
  format.FormatFolder = prefs.ProposalFolder;
  format.FormatName = QStringLiteral("Fuzz.wft");
  format.FormatIsOpen = true;
  Write(format.FormatFolder + format.FormatName, file);
  StartNewFile();
  return FormatLinesNow();
}

QStringList AsProperties(const QByteArray& file) {
  StartAfresh();
  proposal.BaseName = QStringLiteral("Fuzz");
  Write(PropertyFolder() + QStringLiteral("Fuzz.wpf"), file);
  ReadFileProperties();
  return PropertyLinesNow();
}

void CheckReading(QStringList (*read)(const QByteArray&), const QByteArray& file) {
  Desk* const before = &desk();
  const auto putBack = qScopeGuard([before] { SetDesk(before); });
  FakeDesk listener;
  const QStringList lines = read(file);
  RequireQuiet(listener);
  listener.said.clear();
  Require(read(BytesOfLines(lines)) == lines, "lines that were written and read are written again alike");
  Require(listener.said.isEmpty(), "what the program has written it can read");
}

}  // namespace

QByteArray PropertyFileInput(std::mt19937& random) {
  QByteArray file;
  for (auto left = Below(random, 12); left > 0; --left) {
    const QByteArray& seed = Seeds()[Below(random, Seeds().size())];
    file += Below(random, 3) == 0 ? Damaged(seed, random) : seed;
    file += Below(random, 20) == 0 ? "\n" : "\r\n";
  }
  return file;
}

void CheckPropertyLanguage(const QByteArray& file) {
  CheckReading(AsFormat, file);
  CheckReading(AsProperties, file);
}

}  // namespace quillane::test
