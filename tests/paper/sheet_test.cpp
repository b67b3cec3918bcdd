#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QLineEdit>
#include <QMimeData>
#include <QSignalSpy>
#include <QtTest>

#include "editing/selection.h"
#include "model/focus.h"
#include "model/frame.h"
#include "model/upcalls.h"
#include "paper_desk.h"
#include "platform/codepage.h"
#include "sheet/label_input.h"
#include "sheet/rubber_band.h"
#include "sheet/sheet_view.h"

using namespace quillane;
using namespace quillane::test;

namespace {

class Sheet : public testing::Test {
 protected:
  FreshPages fresh;
  SheetView view;

  void SetUp() override {
    frame().pageBroughtToFront = [](int window) { TheSheetView()->ShowPage(window); };
    view.resize(900, 1080);
    view.show();
    Front(1);
  }
  void TearDown() override { upcalls() = Upcalls(); }

  void Front(int window) {
    view.ShowPage(window);
    SetFocus(page(window).txt[0]);
  }
  QLineEdit& Editor() { return *qobject_cast<QLineEdit*>(view.Editor()); }
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(&Editor(), key, modifiers); }
  void Type(const char* text) { QTest::keyClicks(&Editor(), QString::fromUtf8(text)); }
  void Commit(const char* text) {
    QInputMethodEvent event;
    event.setCommitString(QString::fromUtf8(text));
    QApplication::sendEvent(&Editor(), &event);
  }
  /// The pointer with the left button: Press, Move or Release at a place in pixels.
  void Hand(QEvent::Type type, QPoint place) {
    const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, place, view.mapToGlobal(place),
                      type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, held, Qt::NoModifier);
    QApplication::sendEvent(&view, &event);
  }
  QPoint Inside(const Control& control) { return view.PixelRect(control).center(); }
  void Click(const Control& control, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mouseClick(&view, button, {}, Inside(control));
  }
  std::string Focus() { return editing.Focus ? editing.Focus->FullName().toStdString() : "none"; }
};

std::string Text(const Control& control) {
  return control.Text().toStdString();
}

TEST_F(Sheet, MovesNoPixelOfATextWhenItsAreaGetsTheFocus) {
  Control& area = page(1).txt[4];
  area.SetText(QStringLiteral("Arch of smilax & white wisteria, WAVY AV To."));
  area.SetSelStart(static_cast<int>(area.Text().size()));
  view.resize(2000, 1600);  // wide enough for the whole sheet, which would else be moved until the area shows
  for (const double zoom : {1.0, 1.25, 1.5, 2.0}) {
    SetFocus(page(1).txt[0]);
    view.SetZoom(zoom);
    area.SetBackColor(colors::Cyan);
    const double caret = double{area.Left() + TextWidth(area.GetFont(), area.Text())} / view.TwipsPerPixel();
    QRect seen = view.PixelRect(area);
    seen.setWidth(static_cast<int>(caret) - seen.left() + view.ToPixels({0, 0}).x() - 1);
    const QImage painted = view.grab(seen).toImage();
    SetFocus(area);
    ASSERT_EQ(view.Focused(), &area);
    EXPECT_EQ(view.grab(seen).toImage(), painted) << "at zoom " << zoom;
  }
}

TEST_F(Sheet, TurnsWhatTheFilesCannotHoldIntoItsEquivalentAtOnce) {
  Commit("Łódź “€5” 🌹");
  EXPECT_EQ(Text(page(1).txt[0]), FoldToCodePage(QString::fromUtf8("Łódź “€5” 🌹")).toStdString());
  EXPECT_EQ(Editor().text(), page(1).txt[0].Text());
  EXPECT_FALSE(Editor().text().contains(QChar(0x141)));
  fresh.desk.clipboard = QString::fromUtf8("ő\r\nnext line\r\n");
  SetFocus(page(1).txt[1]);
  Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Text(page(1).txt[1]), "o next line");
}

TEST_F(Sheet, LetsNoWayIntoAnAmountTakeLetters) {
  SetFocus(page(1).txt[35]);
  Type("1a2");
  Commit("x.5");
  EXPECT_EQ(Text(page(1).txt[35]), "12.5");
  fresh.desk.clipboard = QStringLiteral("letters");
  Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Text(page(1).txt[35]), "12.5");
  Key(Qt::Key_A, Qt::ControlModifier);
  fresh.desk.clipboard = QStringLiteral("99");
  Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Text(page(1).txt[35]), "99");
}

TEST_F(Sheet, CutsCopiesAndTakesBackWithinAnArea) {
  Type("lilies");
  Key(Qt::Key_A, Qt::ControlModifier);
  Key(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(fresh.desk.clipboard, QStringLiteral("lilies"));
  Key(Qt::Key_X, Qt::ControlModifier);
  EXPECT_EQ(Text(page(1).txt[0]), "");
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Text(page(1).txt[0]), "lilies");
  Key(Qt::Key_A, Qt::ControlModifier);
  QFocusEvent toAMenu(QEvent::FocusOut, Qt::OtherFocusReason);
  QApplication::sendEvent(&Editor(), &toAMenu);
  EXPECT_EQ(Editor().selectedText(), QStringLiteral("lilies")) << "its commands work on what is selected";
  SetFocus(page(1).txt[1]);
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Text(page(1).txt[1]), "") << "into no other area";
}

TEST_F(Sheet, ShowsNoEditorOverAnAreaThatIsNotThere) {
  ShowRowColumns(page(1), 3, true);
  SetFocus(page(1).txtQty[3]);
  ASSERT_EQ(view.Focused(), &page(1).txtQty[3]);
  ShowRowColumns(page(1), 3, false);
  EXPECT_EQ(view.Focused(), nullptr);
  Front(1);
  view.ShowPage(2);
  EXPECT_EQ(view.Focused(), nullptr) << "its area is on the page that was in front";
  EXPECT_FALSE(Editor().isVisible());
}

TEST_F(Sheet, EndsAMoveWhenShiftComesUpAndNotWhileItRepeats) {
  const auto release = [this](bool repeats) {
    QKeyEvent event(QEvent::KeyRelease, Qt::Key_Shift, Qt::ShiftModifier, {}, repeats);
    QApplication::sendEvent(&Editor(), &event);
    return !editing.MovingContents;
  };
  editing.MovingContents = true;
  EXPECT_FALSE(release(true));
  EXPECT_TRUE(release(false));
}

TEST_F(Sheet, ScrollsInPreviewAndWritesNothing) {
  frame().clientHeight = 5000;
  view.SetDrawMode(DrawMode::Printing);
  for (const auto& [key, value] : Cases<Qt::Key, int>{
           {Qt::Key_PageDown, 2500}, {Qt::Key_Down, 2500}, {Qt::Key_X, 2500}, {Qt::Key_PageUp, 0}}) {
    QTest::keyClick(&view, key);
    EXPECT_EQ(frame().VScroll1.Value, value) << key;
  }
  EXPECT_EQ(Text(page(1).txt[0]), "");
}

TEST_F(Sheet, KeepsTheCaretOfALongTextInsideItsArea) {
  Front(0);
  SetFocus(page(0).txt[3]);
  for (int i = 0; i < 60; ++i) Type("W");
  const auto caret = [&] {
    Editor().grab();
    return Editor().inputMethodQuery(Qt::ImCursorRectangle).toRectF();
  };
  EXPECT_EQ(page(0).txt[3].BackColor(), colors::Red);
  EXPECT_NEAR(caret().right(), Editor().width(), 3);
  Key(Qt::Key_Home);
  EXPECT_NEAR(caret().left(), 2, 1);
}

TEST_F(Sheet, LeavesTheMenusKeysAlone) {
  Type("lilies");
  for (const auto& [key, modifiers] : {std::pair{Qt::Key_U, Qt::ControlModifier},
                                       {Qt::Key_D, Qt::ControlModifier},
                                       {Qt::Key_Delete, Qt::ShiftModifier},
                                       {Qt::Key_S, Qt::ControlModifier}}) {
    QKeyEvent asked(QEvent::ShortcutOverride, key, modifiers);
    asked.ignore();
    QApplication::sendEvent(&Editor(), &asked);
    EXPECT_FALSE(asked.isAccepted()) << key;
  }
  Key(Qt::Key_U, Qt::ControlModifier);
  EXPECT_EQ(Text(page(1).txt[0]), "lilies");
}

TEST_F(Sheet, RefusesKeysWhileRowsAreSelectedAndOnTheCopy) {
  Type("kept");
  const auto assail = [&](const Control& area) {
    const std::string before = Text(area);
    fresh.desk.clipboard = QStringLiteral("12");
    Type("7");
    Commit("8");
    Key(Qt::Key_Backspace);
    Key(Qt::Key_A, Qt::ControlModifier);
    Key(Qt::Key_Delete);
    Key(Qt::Key_X, Qt::ControlModifier);
    Key(Qt::Key_V, Qt::ControlModifier);
    Key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Text(area), before);
  };
  page(1).txt[0].SetBackColor(colors::Blue);
  editing.AreasSelected = true;
  assail(page(1).txt[0]);
  editing.AreasSelected = false;
  page(6).txt[4].SetText(QStringLiteral("250.00"));
  view.ShowPage(6);
  Click(page(6).txt[4]);
  assail(page(6).txt[4]);
}

TEST_F(Sheet, PutsTheCaretWhereThePointerIs) {
  page(1).txt[3].SetText(QStringLiteral("white wisteria"));
  const Control& area = page(1).txt[3];
  const float x = area.Left() + TextWidth(area.GetFont(), QStringLiteral("white "));
  const QPoint place = view.ToPixels({double{x}, double{area.Top() + 100}});
  QTest::mouseClick(&view, Qt::LeftButton, {}, place);
  EXPECT_EQ(Focus(), "frmP2.txt(3)");
  EXPECT_EQ(area.SelStart(), 6);
  const QPoint there = view.ToPixels({double{x} + 5000, double{area.Top() + 100}});
  Hand(QEvent::MouseButtonPress, place);
  Hand(QEvent::MouseMove, there);
  Hand(QEvent::MouseButtonRelease, there);
  EXPECT_EQ(area.SelText().toStdString(), "wisteria");
}

TEST_F(Sheet, TakesADroppedTerm) {
  const auto drop = [&](const Control& target) {
    QMimeData data;
    data.setText(QStringLiteral("Centerpieces[35.00]"));
    QDragEnterEvent enter(Inside(target), Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&view, &enter);
    QDropEvent event(Inside(target), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
    event.setDropAction(Qt::MoveAction);
    QApplication::sendEvent(&view, &event);
    EXPECT_EQ(event.dropAction() == Qt::CopyAction, event.isAccepted()) << "the list keeps its term";
    return event.isAccepted();
  };
  EXPECT_TRUE(drop(page(1).txt[6]));
  EXPECT_EQ(Text(page(1).txt[6]), "Centerpieces");
  EXPECT_EQ(Text(page(1).txt[41]), "35.00");
  EXPECT_FALSE(drop(page(1).txt[42]));
  EXPECT_EQ(Text(page(1).txt[42]), "");
}

TEST_F(Sheet, AsksForAnotherScrollValueWhenTheWheelTurns) {
  frame().VScroll1.Max = 9000;
  frame().VScroll1.Value = 8900;
  int asked = -1;
  view.scrollTo = [&](int value) { asked = value; };
  QWheelEvent turn(QPointF(100, 100), QPointF(100, 100), {}, QPoint(0, -120), {}, {}, Qt::NoScrollPhase,
                   false);
  QApplication::sendEvent(&view, &turn);
  EXPECT_EQ(asked, 9000) << "no further than the sheet's end";
}

TEST_F(Sheet, KeepsPlacesUnderScrollAndZoom) {
  view.SetScroll(3000);
  view.SetZoom(1.5);
  const QPointF place(4321, 5432);
  const QPointF back = view.ToTwips(view.ToPixels(place));
  EXPECT_NEAR(back.x(), place.x(), view.TwipsPerPixel());
  EXPECT_NEAR(back.y(), place.y(), view.TwipsPerPixel());
  EXPECT_EQ(view.ControlAt({800, 1900}), &page(1).txt[0]);
  EXPECT_EQ(view.ControlAt({800, 1700}), nullptr);
  EXPECT_EQ(Editor().geometry(), view.PixelRect(page(1).txt[0]));
}

/// Keeps what the view was asked to paint.
struct PaintWatch : QObject {
  QRegion region;
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) region += static_cast<QPaintEvent*>(event)->region();
    return false;
  }
};

TEST_F(Sheet, PaintsOnlyWhatIsStale) {
  QApplication::processEvents();
  PaintWatch watch;
  view.installEventFilter(&watch);
  page(1).txt[20].SetText(QStringLiteral("new"));
  page(1).lbl[38].SetCaption(QStringLiteral("A longer title than before"));
  page(3).txt[2].SetText(QStringLiteral("another page"));
  QApplication::processEvents();
  EXPECT_TRUE(watch.region.contains(view.PixelRect(page(1).txt[20])));
  EXPECT_TRUE(watch.region.contains(view.PixelRect(page(1).lbl[38])));
  int area = 0;
  for (const QRect& rect : watch.region) area += rect.width() * rect.height();
  EXPECT_LT(area, view.width() * 60);
}

TEST_F(Sheet, SlidesUnderABandThatIsPulledOutOfIt) {
  view.resize(900, 500);
  view.scrollTo = [this](int value) { view.SetScroll(std::clamp(value, 0, 9000)); };
  RubberBand band(view);
  view.pageMouse = [&](const PageMouseEvent& event) { band.Handle(event); };
  page(1).txt[20].SetText(QStringLiteral("Roses"));
  const QPoint from = view.ToPixels({300, 1500}), under(850, 560);
  Hand(QEvent::MouseButtonPress, from);
  Hand(QEvent::MouseMove, QPoint(850, 400));
  band.Pull();
  EXPECT_EQ(frame().VScroll1.Value, 0) << "inside nothing slides";
  Hand(QEvent::MouseMove, under);
  for (int step = 0; step < 4; ++step) {
    const double before = view.ToTwips(QPointF(under)).y();
    frame().VScroll1.Value = static_cast<int>(view.ToTwips({0, 0}).y());
    band.Pull();
    const Control& shape = page(1).shpSelect[0];
    EXPECT_GT(view.ToTwips(QPointF(under)).y(), before);
    EXPECT_NEAR(double{shape.Top() + shape.Height()}, view.ToTwips(QPointF(under)).y(), 1);
    EXPECT_NEAR(double{shape.Top()}, 1500, view.TwipsPerPixel()) << "its beginning stays on the paper";
  }
  Hand(QEvent::MouseButtonRelease, under);
  EXPECT_EQ(page(1).txt[0].BackColor(), colors::Blue);
  EXPECT_EQ(page(1).txt[20].BackColor(), colors::Blue);
  EXPECT_FALSE(page(1).shpSelect[0].Visible());
  Hand(QEvent::MouseButtonPress, from);
  Hand(QEvent::MouseMove, from + QPoint(2, 0));
  Hand(QEvent::MouseButtonRelease, from + QPoint(2, 0));
  EXPECT_EQ(page(1).txt[20].BackColor(), colors::Blue) << "a click on the paper is no band";

  const double scrolled = view.Scroll();
  Hand(QEvent::MouseButtonPress, {from.x(), 200});
  Hand(QEvent::MouseMove, {850, -40});
  frame().VScroll1.Value = static_cast<int>(scrolled);
  band.Pull();
  EXPECT_LT(view.Scroll(), scrolled) << "and up again";
  Hand(QEvent::MouseButtonRelease, {850, -40});
  ClearSelection();
}

TEST_F(Sheet, ReachesALabelUnderAnAreaWithCtrlAndScrollsUnderItsDrag) {
  view.resize(900, 500);
  view.scrollTo = [this](int value) { view.SetScroll(std::clamp(value, 0, 9000)); };
  LabelInput input(view);
  view.pageMouse = [&](const PageMouseEvent& event) { input.Handle(event); };
  Control& label = page(1).lbl[38];
  label.SetLeft(page(1).txt[5].Left() + 100);
  label.SetTop(page(1).txt[5].Top());
  const QPoint on = view.ToPixels({double{label.Left()} + 60, double{label.Top()} + 60});
  const float top = label.Top();
  QTest::mouseClick(&view, Qt::LeftButton, {}, on);
  EXPECT_EQ(Focus(), "frmP2.txt(5)") << "the area is still clicked";
  label.SetCaption(QString());
  EXPECT_EQ(view.ControlAt(view.ToTwips(on), Qt::ControlModifier), &label) << "without words as well";
  const QPoint under(on.x(), view.height() + 40);
  QTest::mousePress(&view, Qt::LeftButton, Qt::ControlModifier, on);
  Hand(QEvent::MouseMove, under);
  EXPECT_GT(label.Top(), top);
  EXPECT_TRUE(QTest::qWaitFor([this] { return view.Scroll() > 0; })) << "the sheet follows";
  QTest::mousePress(&view, Qt::RightButton, {}, on);
  QTest::mouseRelease(&view, Qt::RightButton, {}, on);
  EXPECT_TRUE(page(1).drag.Dragging) << "another button changes nothing";
  QTest::mouseRelease(&view, Qt::LeftButton, {}, under);
  EXPECT_EQ(Focus(), "frmP2.txt(5)");
  EXPECT_TRUE(proposal.LabelMarks[1][38].Changed);
}

TEST_F(Sheet, NamesItsAreasForAScreenReader) {
  QAccessibleInterface* sheet = QAccessible::queryAccessibleInterface(&view);
  ASSERT_TRUE(sheet);
  EXPECT_EQ(sheet->text(QAccessible::Name), QStringLiteral("Page 2"));
  ASSERT_EQ(sheet->childCount(), 70);
  page(1).imgNoTax[39].SetShown(true);
  page(1).txt[39].SetText(QStringLiteral("12.00"));
  QAccessibleInterface* amount = sheet->child(39);
  EXPECT_EQ(amount->text(QAccessible::Name), QStringLiteral("Page 2, row 5, amount"));
  EXPECT_EQ(amount->text(QAccessible::Value), QStringLiteral("12.00"));
  EXPECT_EQ(amount->text(QAccessible::Description), QStringLiteral("exempt from sales tax"));
  EXPECT_EQ(sheet->indexOfChild(amount), 39);
  page(1).txt[39].SetBackColor(colors::Blue);
  EXPECT_TRUE(amount->state().selected);
  amount->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
  EXPECT_EQ(Focus(), "frmP2.txt(39)");
  EXPECT_EQ(sheet->focusChild()->text(QAccessible::Name), QStringLiteral("Page 2, row 5, amount"));
  EXPECT_EQ(sheet->child(39), sheet->focusChild());
  EXPECT_EQ(sheet->focusChild()->text(QAccessible::Description), QStringLiteral("exempt from sales tax"));
}

}  // namespace
