#include "work.h"

#include <fcntl.h>
#include <unistd.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QKeyEvent>
#include <QMainWindow>
#include <QPainter>
#include <QPdfWriter>
#include <memory>

#include "app/startup.h"
#include "editing/navigation.h"
#include "files/event_file.h"
#include "model/event_bytes.h"
#include "model/focus.h"
#include "model/proposal.h"
#include "pages/show_document.h"
#include "pages/totals.h"
#include "print/print.h"
#include "qt/text_measure.h"
#include "samples.h"
#include "session.h"
#include "sheet/sheet_view.h"
#include "windows/frame_window.h"

namespace quillane::bench {

namespace {

constexpr double Nanoseconds = 1e6;  // in a millisecond

template <class Body>
double Milliseconds(Body&& body) {
  QElapsedTimer timer;
  timer.start();
  body();
  return static_cast<double>(timer.nsecsElapsed()) / Nanoseconds;
}

/// Counts the paints of a widget, so that no measurement counts that painted nothing.
class PaintCounter : public QObject {
 public:
  explicit PaintCounter(QWidget* widget) { widget->installEventFilter(this); }
  int count = 0;

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++count;
    return false;
  }
};

/// Runs something that must show, and gives the time until it has been painted.
template <class Body>
double ToPainted(const PaintCounter& paints, Body&& body) {
  const int before = paints.count;
  const double taken = Milliseconds([&] {
    body();
    Settle();
  });
  if (paints.count == before) qFatal("nothing was painted");
  return taken;
}

/// A window as bare as the one whose start is measured; its repaint is what any change on a screen costs at
/// least.
struct BareWindow {
  explicit BareWindow(QSize size) {
    window.resize(size);
    window.setCentralWidget(new QWidget(&window));  // the window owns it
    window.show();
    Settle();
    paints = std::make_unique<PaintCounter>(window.centralWidget());
  }
  double Repaint() {
    return ToPainted(*paints, [this] { window.centralWidget()->update(); });
  }
  QMainWindow window;
  std::unique_ptr<PaintCounter> paints;
};

void FillEveryRow() {
  for (int window = 0; window < ItemPages; ++window) {
    Page& sheet = page(window);
    for (int row = sheet.FirstRow(); row <= sheet.LastRow(); ++row) {
      sheet.txt[row].SetText(
          QStringLiteral("Item %1 of page %2 with a line of words").arg(row).arg(window + 1));
      sheet.txt[row + sheet.AmountOffset()].SetText(QStringLiteral("%1.25").arg(100 + row));
    }
  }
  CalculateAllPages();
  RecalculateTotals(0);
}

void MeasurePageChange(int times, BareWindow& bare, const PaintCounter& paints) {
  Samples ours, empty;
  for (int i = 0; i < times * PageCount; ++i) {
    ours.Add(ToPainted(paints, [i] { UpdatePageButtons((i + 1) % PageCount); }));
    empty.Add(bare.Repaint());
  }
  PrintLine(QStringLiteral("page change to painted"), QStringLiteral("ms"), ours, empty, {Aim::Of::Value, 4});
}

void PressAndRelease(QChar letter) {
  QWidget* typedInto = QApplication::focusWidget();
  if (!typedInto) qFatal("nothing has the keyboard");
  const int key = letter.toUpper().unicode();
  QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, letter),
      release(QEvent::KeyRelease, key, Qt::NoModifier, letter);
  QApplication::sendEvent(typedInto, &press);
  QApplication::sendEvent(typedInto, &release);
}

void MeasureTyping(int times, BareWindow& bare, const PaintCounter& paints) {
  Samples ours, empty;
  UpdatePageButtons(1);
  constexpr int LettersOfARow = 40;
  for (int i = 0; i < times * LettersOfARow; ++i) {
    Control& area = page(1).txt[i / LettersOfARow % 34];
    if (i % LettersOfARow == 0) {
      area.SetText(QString());
      SetFocus(area);
      Settle();
    }
    const QString before = area.Text();
    ours.Add(ToPainted(
        paints, [i] { PressAndRelease(QLatin1Char(i % 6 == 5 ? ' ' : static_cast<char>('a' + i % 26))); }));
    if (area.Text() == before) qFatal("a key was typed and nothing was written");
    empty.Add(bare.Repaint());
  }
  PrintLine(QStringLiteral("key to painted"), QStringLiteral("ms"), ours, empty, {Aim::Of::Value, 1});
  Samples slowest;
  slowest.Add(ours.Quantile(0.99));
  PrintLine(QStringLiteral("key to painted, 99th of 100"), QStringLiteral("ms"), slowest, {},
            {Aim::Of::Value, 2});
}

void MeasureOpening(int times, BareWindow& bare, const PaintCounter& paints) {
  Samples ours, empty;
  for (int i = 0; i < times; ++i) {
    ours.Add(ToPainted(paints, [] { OpenProposal(QStringLiteral("Emily Carter.wwf")); }));
    empty.Add(bare.Repaint());
  }
  PrintLine(QStringLiteral("open to painted"), QStringLiteral("ms"), ours, empty, {Aim::Of::Value, 10});
}

/// What a careful program does at least to replace a file: write beside it, sync, rename, sync the folder.
void ReplaceByHand(const QString& folder, const QByteArray& bytes) {
  const QByteArray beside = QFile::encodeName(folder + QStringLiteral("by hand.new"));
  const QByteArray name = QFile::encodeName(folder + QStringLiteral("by hand"));
  const int file = open(beside.constData(), O_WRONLY | O_CREAT | O_TRUNC, 0666);
  const int directory = open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY);
  if (file < 0 || directory < 0 || write(file, bytes.constData(), bytes.size()) != bytes.size() ||
      fsync(file) != 0 || rename(beside.constData(), name.constData()) != 0 || fsync(directory) != 0)
    qFatal("cannot write in %s", qPrintable(folder));
  close(file);
  close(directory);
}

void MeasureSaving(int times) {
  Samples ours, byHand;
  const QByteArray bytes = EventFileBytes(ReadPages());
  for (int i = 0; i < times; ++i) {
    page(1).txt[0].SetText(QStringLiteral("Saved for the %1th time").arg(i));
    ours.Add(Milliseconds([] {
      if (!SaveEventFile()) qFatal("the proposal was not saved");
    }));
    byHand.Add(Milliseconds([&] { ReplaceByHand(proposal.CurrentFolder, bytes); }));
  }
  PrintLine(QStringLiteral("save, beside the same bytes by hand"), QStringLiteral("ms"), ours, byHand,
            {Aim::Of::Ratio, 1.5});
}

void MeasureRecalculation(int times, BareWindow& bare) {
  Samples ours, empty;
  for (int i = 0; i < times * 10; ++i) {
    ours.Add(Milliseconds([] {
      CalculateAllPages();
      CheckAddition();
      RecalculateTotals(0);
    }));
    empty.Add(bare.Repaint());
  }
  PrintLine(QStringLiteral("full recalculation, 148 rows"), QStringLiteral("ms"), ours, empty,
            {Aim::Of::Value, 1});
}

/// The same strings in the same fonts at the same places, with nothing of the program around them.
void PrintByHand(const QString& folder) {
  for (int window = 0; window < PageCount; ++window) {
    QPdfWriter writer(folder + QStringLiteral("by hand %1.pdf").arg(window));
    writer.setPageSize(QPageSize(QPageSize::Letter));
    writer.setPageMargins(QMarginsF());
    writer.setResolution(1440);
    QPainter painter(&writer);
    for (const Control* control : page(window).Controls()) {
      const QString& text = control->GetKind() == Kind::Label ? control->Caption() : control->Text();
      if (control->Tag() == QLatin1String("Hide") || text.isEmpty()) continue;
      painter.setFont(MakeFont(control->GetFont()));
      painter.drawText(QPointF(control->Left(), control->Top() + MetricsOf(control->GetFont()).ascent), text);
    }
  }
}

void MeasurePrinting(int times) {
  Samples ours, byHand;
  for (int i = 0; i < times; ++i) {
    ours.Add(Milliseconds([] { PrintAllCommand(); }));
    byHand.Add(Milliseconds([] { PrintByHand(proposal.CurrentFolder); }));
  }
  if (!QFile::exists(proposal.CurrentFolder + proposal.BaseName + QStringLiteral(" - Page 5.pdf")))
    qFatal("the sheets were not printed");
  PrintLine(QStringLiteral("seven sheets to PDF"), QStringLiteral("ms"), ours, byHand, {Aim::Of::Ratio, 1.3});
}

}  // namespace

void MeasureWork(int times) {
  const Home home;
  BenchDesk desk;
  Program program(desk, home.Path(), QStringLiteral(QUILLANE_SOURCE_DATA));
  // Not quit(), which closes the windows first.
  StartAndClickAway(program, desk, [] { QApplication::exit(); });
  BareWindow bare(program.Window()->size());
  Activate(*program.Window());
  PaintCounter sheetPaints(program.Window()->Sheet());
  MeasureOpening(times, bare, sheetPaints);
  FillEveryRow();
  MeasurePageChange(times, bare, sheetPaints);
  MeasureTyping(times, bare, sheetPaints);
  MeasureRecalculation(times, bare);
  MeasureSaving(times);
  MeasurePrinting(times);
}

}  // namespace quillane::bench
