#include "print/pdf_file.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <cerrno>

#include "files/event_file.h"
#include "files/export.h"
#include "paper_desk.h"
#include "pdf_text.h"
#include "platform/files.h"
#include "qt/pdf_info.h"
#include "qt/word_document.h"

using namespace quillane;
using namespace quillane::test;

namespace {

class PdfFile : public testing::Test {
 protected:
  FreshPages fresh;

  void SetUp() override { Name(QStringLiteral("Sofía Núñez")); }

  static void Name(const QString& name) {
    page(0).txt[2].SetText(name);
    proposal.CurrentFolder = prefs.ProposalFolder;
  }
  static void Write(int window, const QString& text) { PutText(page(window).txt[20], text); }
  static QString Path() { return prefs.ProposalFolder + QStringLiteral("Sofía Núñez.pdf"); }

  static QString Output(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished()) << program.toStdString();
    return QString::fromUtf8(process.readAllStandardOutput());
  }
};

TEST_F(PdfFile, HoldsTheSheetsInUseInReadingOrder) {
  Write(0, QStringLiteral("First"));
  Write(2, QStringLiteral("Third"));
  Write(4, QString());
  printing.PrintCancelled = true;
  ReplaceFile(prefs.ProposalFolder + "PrinterOffsets.txt", "Printer X Offset: 1\r\nPrinter Y Offset: 1\r\n");
  printing.PrinterXOffset = 1440;
  SaveAsPdfCommand();
  EXPECT_EQ(fresh.desk.said, QStringList{QStringLiteral("File was saved as Sofía Núñez.pdf")});
  const std::vector<PdfPage> sheets = ReadPdf(Path());
  ASSERT_EQ(sheets.size(), 5U);
  const Control& first = page(0).txt[20];
  EXPECT_TRUE(HasTextAt(sheets[0], QStringLiteral("First"), first.Left(), first.Top()));
  EXPECT_TRUE(FindText(sheets[1], QStringLiteral("Third")).empty());
  EXPECT_FALSE(FindText(sheets[2], QStringLiteral("Third")).empty());
  EXPECT_FALSE(FindText(sheets[3], QStringLiteral("Our Copy")).empty());
  EXPECT_FALSE(FindText(sheets[4], QStringLiteral("Client's Copy")).empty());
  for (const PdfPage& sheet : sheets) EXPECT_NEAR(sheet.width, 12240, 1);
}

TEST_F(PdfFile, SaysWhoseItIs) {
  prefs.CompanyName = QString::fromUtf8("Alder & Söhne (Events)");
  SaveAsPdfCommand();
  const QString info = Output(QStringLiteral("pdfinfo"), {Path()});
  EXPECT_TRUE(info.contains(QRegularExpression("Title: +Proposal for Sofía Núñez\n"))) << info.toStdString();
  EXPECT_TRUE(info.contains(QRegularExpression("Author: +Alder & Söhne \\(Events\\)\n")))
      << info.toStdString();
  EXPECT_TRUE(info.contains(QRegularExpression("CreationDate: +\\w"))) << info.toStdString();
  EXPECT_TRUE(info.contains(QRegularExpression("Pages: +3\n"))) << info.toStdString();
}

TEST_F(PdfFile, KeepsTheOldFileUntilTheNewIsWhole) {
  ReplaceFile(Path(), "old");
  fresh.desk.answer = Answer::Yes;
  BreakDisk("write", ENOSPC);
  SaveAsPdfCommand();
  MendDisk();
  EXPECT_TRUE(fresh.desk.said.last().contains(QStringLiteral("SaveAsPdf")));
  EXPECT_EQ(ReadWholeFile(Path()), "old");
}

TEST_F(PdfFile, NeedsANameThatAFileCanHave) {
  for (const char* name : {"", "Carter / Vane"}) {
    Name(QString::fromUtf8(name));
    fresh.desk.said.clear();
    SaveAsPdfCommand();
    EXPECT_EQ(fresh.desk.said.size(), 1);
    EXPECT_TRUE(fresh.desk.documents.isEmpty());
    EXPECT_EQ(editing.Focus, &page(0).txt[2]);
  }
}

TEST(PdfAuthor, LeavesAFileAloneThatIsNotBuiltAsExpected) {
  for (const char* bytes :
       {"", "no pdf", "trailer\n<<\n/Size 4 \n/Info 1 0 R\n/Root 2 0 R\n>>\nstartxref\n9 \n%%EOF\n",
        "\n1 0 obj\n<<\n/Title (a)\n>>\nendobj\ntrailer\n<<\n/Info 1 0 R\n>>\n"})
    EXPECT_EQ(WithAuthor(bytes, QStringLiteral("Alder")), bytes);
}

TEST_F(PdfFile, AWordProcessorFindsTheReportsLinesInItsDocument) {
  Write(0, QStringLiteral("Roses < \"lilies\" & ivy"));
  const QString report = ProposalReport();
  const QString path = prefs.ProposalFolder + QStringLiteral("report.odt");
  ReplaceFile(path, MakeWordDocument(proposal.Title, report));
  QString content = Output(QStringLiteral("unzip"), {"-p", path, "content.xml"});
  ASSERT_FALSE(content.isEmpty()) << "the test needs unzip";
  EXPECT_TRUE(content.contains(QStringLiteral("font-family=\"Arial\" fo:font-size=\"10pt\"")));
  // The values of lines with one, two and three tabs stand in one column, which is the last stop of each.
  QRegularExpression lastStop("position=\"([^\"]*)\" style:type=\"left\"/>\\s*</style:tab-stops>");
  int kinds = 0;
  for (auto found = lastStop.globalMatch(content); found.hasNext(); ++kinds)
    EXPECT_EQ(found.next().captured(1).toStdString(), "126pt");
  EXPECT_EQ(kinds, 3);
  content = content.mid(content.indexOf(QStringLiteral("<office:body>")));
  content.remove(QRegularExpression("\\n\\s*(?=<)"));  // between the file's own marks
  content.replace(QRegularExpression("<text:p [^>]*/>"), QStringLiteral("\n"));
  content.replace(QStringLiteral("</text:p>"), QStringLiteral("\n"));
  content.replace(QRegularExpression("<text:tab ?/>"), QStringLiteral("\t"));
  content.replace(QRegularExpression("<text:s (?:text:c=\"1\" ?)?/>"), QStringLiteral(" "));
  content.remove(QRegularExpression("<[^>]*>"));
  content.replace("&lt;", "<").replace("&gt;", ">").replace("&quot;", "\"").replace("&amp;", "&");
  const auto lines = [](QString text) {
    QStringList kept;
    for (const QString& line : text.remove(u'\r').split(u'\n')) kept << line.trimmed();
    while (!kept.isEmpty() && kept.last().isEmpty()) kept.removeLast();
    while (!kept.isEmpty() && kept.first().isEmpty()) kept.removeFirst();
    return kept.join(u'\n').toStdString();
  };
  EXPECT_EQ(lines(content), lines(report));
}

}  // namespace
