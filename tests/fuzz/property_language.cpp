#include "property_language.h"

#include <QDir>
#include <QFile>
#include <QScopeGuard>
#include <algorithm>
#include <stdexcept>
#include <vector>

#include "files/format_file.h"
#include "files/new_proposal.h"
#include "files/property_file.h"
#include "model/document_lines.h"
#include "model/property_lines.h"
#include "model/proposal.h"
#include "model/upcalls.h"
#include "pages/defaults.h"
#include "pages/show_document.h"
#include "unit/fake_desk.h"

namespace quillane::test {

namespace {

void Require(bool holds, const char* what) {
  if (!holds) throw std::logic_error(what);
}

qsizetype Below(std::mt19937& random, qsizetype bound) {
  return static_cast<qsizetype>(random() % static_cast<unsigned long>(bound));
}

// A true line, and which of the two files gives it back letter by letter when it is read and written.
struct Seed {
  QByteArray line;
  bool keptByFormat = false, keptByProperties = false;
  bool formatsOnly = false;  ///< stops the parse of a property file
};

const std::vector<Seed>& Seeds() {
  static const std::vector<Seed> seeds = {
      {"frmP1.txt(20).FontBold=True", true, true},
      {"frmP2.txt(3).Text=Roses, .FontBold=True", true, false, true},
      {"frmP1.txt(2).Text=Emily Carter", true, false, true},
      {"frmP4.txt(50).TaxExempt=True", true, false, true},
      {"frmP2.txq(2).QtyBox=True", false, true},
      {"frmP2.txq(34).QtyBox=True .QtyValue=9 or 10 .AmtValue=9.50", true},
      {"frmP3.txq(3).QtyBox=False .QtyValue= .AmtValue="},
      {"frmP1.lbl(12).Left=10350 .Top=3060 .Caption=Ceremony Time .FontName=Times New Roman .FontBold=True "
       ".FontSize=9.75 .ForeColor=8388608 .FontItalic=True .FontUnderline=False",
       true, true},
      {"frmP6.lbl(17).Left=720 .Top=3960 .Caption=Deposits (no .FontName=) .FontName=Arial .FontBold=False "
       ".FontSize=9 .ForeColor=0"},
      {"frmP1.lbl(45).Left=900 .Top=14900 .Caption=Autumn Fair .FontName=Arial .FontBold=True .FontSize=9 "
       ".ForeColor=-2147483640 .FontItalic=False .FontUnderline=True",
       true, true},
      {"frmP1.pic.Picture=F:/events.jpg .Left=720 .Top=540.5", true},
      {"UDP.FontName=Times New Roman .FontSize=9 .FontColor=255 .FontItalic=False", true, true},
      {"frmP9.txt(1).FontBold=True"},
      {""}};
  return seeds;
}

const Seed* SeedOf(const QByteArray& line) {
  const auto found = std::ranges::find(Seeds(), line, &Seed::line);
  return found == Seeds().end() ? nullptr : &*found;
}

QByteArrayList LinesOf(QByteArray file) {
  QByteArrayList lines = file.replace("\r\n", "\n").split('\n');
  lines.removeLast();  // what follows the last line's end
  return lines;
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
  SetUpPages();
  StartNewFile();
}

// A picture on a drive that is not set up; its line stays with the format.
bool IsLostPicture(const QString& report) {
  return report.contains(QStringLiteral("in ParseFormatFile.\nError Number: 76\n"));
}

// A line may stop the parse by these numbers.
bool IsExpected(const QString& report) {
  for (const int number : {5, 6, 9, 13})
    if (report.contains(QStringLiteral("\nError Number: %1\n").arg(number))) return true;
  return IsLostPicture(report);
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
  ReadFileProperties(Document());
  return PropertyLinesOf(ReadPages());
}

// Reading may repair a file once, and what is repaired twice alike could still be wrong from the start; so a
// file of true lines has to come back line by line.
void RequireTrueLines(const QByteArray& file, bool Seed::*kept, const QStringList& written,
                      const FakeDesk& listener) {
  const QByteArrayList lines = LinesOf(file);
  const bool properties = kept == &Seed::keptByProperties;
  for (const QByteArray& line : lines)
    if (!SeedOf(line) || (properties && SeedOf(line)->formatsOnly)) return;
  Require(listener.said.isEmpty(), "true lines are read without a word");
  for (const QByteArray& line : lines) {
    if (line.isEmpty() && properties) return;
    if (SeedOf(line)->*kept)
      Require(written.contains(QString::fromLatin1(line)), "a true line is written as it was read");
  }
}

void CheckReading(QStringList (*read)(const QByteArray&), const QByteArray& file, bool Seed::*kept) {
  Desk* const before = &desk();
  const auto putBack = qScopeGuard([before] { SetDesk(before); });
  FakeDesk listener;
  const QStringList lines = read(file);
  RequireQuiet(listener);
  RequireTrueLines(file, kept, lines, listener);
  listener.said.clear();
  Require(read(BytesOfLines(lines)) == lines, "lines that were written and read are written again alike");
  for (const Said& box : listener.said)
    Require(IsLostPicture(box.text), "what the program has written it can read");
}

}  // namespace

QByteArray PropertyFileInput(std::mt19937& random) {
  QByteArray file;
  const bool sound = Below(random, 3) == 0;
  for (auto left = Below(random, 12); left > 0; --left) {
    const auto pick = Below(random, static_cast<qsizetype>(Seeds().size()));
    const QByteArray& seed = Seeds()[pick].line;
    file += !sound && Below(random, 3) == 0 ? Damaged(seed, random) : seed;
    file += Below(random, 20) == 0 ? "\n" : "\r\n";
  }
  return file;
}

void CheckPropertyLanguage(const QByteArray& file) {
  CheckReading(AsFormat, file, &Seed::keptByFormat);
  CheckReading(AsProperties, file, &Seed::keptByProperties);
}

}  // namespace quillane::test
