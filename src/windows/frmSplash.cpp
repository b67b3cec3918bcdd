// The splash: four words gather from the corners while the settings and fonts are read; a click goes on at
// any time.
#include <QDialog>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPointer>
#include <QSvgRenderer>
#include <QThread>
#include <QTimer>

#include "app/small_commands.h"
#include "model/proposal.h"
#include "print/print.h"
#include "qt/windows.h"
#include "settings/preferences.h"
#include "ui/desk.h"

namespace quillane {

namespace {

constexpr int TwipsPerPixel = 15;
constexpr int WindowWidth = 9000 / TwipsPerPixel, WindowHeight = 7200 / TwipsPerPixel;
constexpr int Steps = 30;
constexpr qint64 StepTime = 100;  // milliseconds, at least
constexpr int LightestGrey = 239;
const QString Word = QStringLiteral("Quillane");
const QColor Navy(0x26, 0x33, 0x4a), Slate(0x3d, 0x4f, 0x6b), Gold(0xb8, 0x86, 0x2f),
    PaleGold(0xe8, 0xc2, 0x6a);

QFont SansFont(double points) {
  QFont font(QStringLiteral("Arial"));
  font.setPointSizeF(points);
  return font;
}
QFont WordFont(int pixels) {
  QFont font(QStringLiteral("Times New Roman"));
  font.setPixelSize(pixels);
  font.setItalic(true);  // the pages' own face, which is loaded in any case
  font.setLetterSpacing(QFont::PercentageSpacing, 104);
  return font;
}

/// The grey of a step: 15 at first, 16 more with each, to a light grey.
int GreyOf(double step) {
  return static_cast<int>(qMin<double>(LightestGrey, 15 + 16 * (step - 1)));
}

/// The picture over the maker's lines: the program's mark and its name.
class Logo : public QWidget {
 public:
  explicit Logo(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("imgLogo"));
    setAccessibleName(Word);
    resize(280, 186);
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    constexpr int mark = 112;
    QSvgRenderer(QStringLiteral(":/icons/quillane.svg"))
        .render(&painter, QRectF((width() - mark) / 2.0, 0, mark, mark));
    painter.setFont(WordFont(52));
    painter.setPen(Navy);
    painter.drawText(QRect(0, mark + 6, width(), height() - mark - 6), Qt::AlignHCenter | Qt::AlignVCenter,
                     Word);
  }
};

class Splash : public QDialog {
 public:
  explicit Splash(QWidget* parent) : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint), logo_(this) {
    setObjectName(QStringLiteral("frmSplash"));
    setWindowTitle(QStringLiteral("Splash Screen"));
    setFixedSize(WindowWidth, WindowHeight);
    setCursor(Qt::BusyCursor);
    setFont(SansFont(8));
    logo_.move((width() - logo_.width()) / 2, height() / 2 - 300 / TwipsPerPixel - logo_.height());
    logo_.hide();
  }

  void reject() override { GoOn(); }

 protected:
  void showEvent(QShowEvent* event) override {
    QDialog::showEvent(event);
    if (std::exchange(started_, true)) return;
    QTimer::singleShot(0, this, [this] { GatherFourCorners(); });
  }
  void mousePressEvent(QMouseEvent*) override { GoOn(); }
  void keyPressEvent(QKeyEvent* event) override {
    const int key = event->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space) return GoOn();
    QDialog::keyPressEvent(event);
  }
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (gathered_)
      PaintCard(painter);
    else
      PaintGathering(painter);
  }

 private:
  void GatherFourCorners();
  bool WaitForStep(int step, qint64 began);
  void Finish();
  void GoOn();
  void PaintGathering(QPainter& painter) const;
  void PaintCard(QPainter& painter) const;
  void PaintFlourish(QPainter& painter, const QRect& band) const;
  void PrintCentred(QPainter& painter, double points, int twipsUnderMiddle, const QString& text) const;

  Logo logo_;
  double step_ = 1;
  bool started_ = false, gathered_ = false, leaving_ = false;
};

/// A click during this loop begins the whole program inside it and takes the window away: nothing of the
/// window may be touched after that.
void Splash::GatherFourCorners() {
  const QPointer<Splash> self(this);
  for (int step = 1; step <= Steps; ++step) {
    WaitForStep(step, desk().TickCount());
    if (!self || leaving_) return;
  }
  Finish();
}

/// Serves the events for one step's time, moving smoothly meanwhile.  False when the window has gone.
bool Splash::WaitForStep(int step, qint64 began) {
  const QPointer<Splash> self(this);
  for (qint64 passed = 0; passed < StepTime; passed = desk().TickCount() - began) {
    step_ = step + static_cast<double>(passed) / StepTime;
    update();
    desk().ServeEvents();
    if (!self || leaving_) return false;
    QThread::msleep(8);  // a picture every 8 milliseconds is as smooth as screens are; the processor may rest
  }
  return true;
}

void Splash::Finish() {
  gathered_ = true;
  logo_.show();
  repaint();
  const QPointer<Splash> self(this);
  if (!prefs.Read) GetUserPreferences();
  if (!self || leaving_) return;
  if (!printing.FontsLoaded) LoadTheFonts();
  if (!self || leaving_) return;
  unsetCursor();
  update();
}

void Splash::GoOn() {
  if (std::exchange(leaving_, true)) return;
  const QPointer<Splash> self(this);
  try {
    desk().ShowWindow(QStringLiteral("frmMain"), Modality::Modeless);
  } catch (const std::exception&) {
    // What failed has been told where it failed; the splash must not stay in front of it.
  }
  if (self) QDialog::done(Rejected);
}

void Splash::PaintGathering(QPainter& painter) const {
  const int grey = GreyOf(step_);
  painter.fillRect(rect(), Qt::black);
  painter.fillRect(rect().adjusted(0, 0, -1, -1), QColor(grey, grey, grey));
  painter.setFont(WordFont(34));
  const double share = qMin(1.0, (step_ - 1) / Steps), shade = 0.3 + 0.7 * grey / LightestGrey;
  painter.setPen(QColor::fromRgbF(float(Gold.redF() * shade), float(Gold.greenF() * shade),
                                  float(Gold.blueF() * shade)));
  const QSizeF word(painter.fontMetrics().horizontalAdvance(Word), painter.fontMetrics().height());
  const QPointF middle((width() - word.width()) / 2, (height() - word.height()) / 2);
  const double right = width() - word.width() - 1, bottom = height() - word.height() - 1;
  for (const QPointF& corner : {QPointF(1, 1), QPointF(right, 1), QPointF(1, bottom), QPointF(right, bottom)})
    painter.drawText(QRectF(corner + (middle - corner) * share, word), Qt::AlignCenter, Word);
}

void Splash::PaintCard(QPainter& painter) const {
  painter.fillRect(rect(), Qt::white);
  const QRect band = rect().adjusted(0, height() / 2 + 700 / TwipsPerPixel, 0, 0);
  QLinearGradient ground(band.topLeft(), band.bottomLeft());
  ground.setColorAt(0, Slate);
  ground.setColorAt(1, Navy);
  painter.fillRect(band, ground);
  PaintFlourish(painter, band);

  painter.setPen(Navy);
  PrintCentred(painter, 12, 0, maker::Name);
  painter.setPen(Gold);
  PrintCentred(painter, 10, 300, maker::BuildComment);
  painter.setPen(Qt::white);
  PrintCentred(painter, 10, 900,
               printing.FontsLoaded ? QStringLiteral("Fonts Loaded...Click Anywhere to Continue.")
                                    : QStringLiteral("Please wait while fonts continue to load."));
  if (!printing.FontsLoaded)
    PrintCentred(painter, 10, 1200, QStringLiteral("Click anywhere to exit this screen."));
  painter.setFont(SansFont(8));
  painter.setPen(QColor(255, 255, 255, 150));
  painter.drawText(rect().adjusted(16, 0, -16, -12), Qt::AlignRight | Qt::AlignBottom, ProgramVersion());

  painter.setRenderHint(QPainter::Antialiasing, false);
  painter.setPen(QColor(127, 127, 127));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

/// The stroke of the quill in the program's mark, drawn out over the band.
void Splash::PaintFlourish(QPainter& painter, const QRect& band) const {
  painter.fillRect(QRect(band.left(), band.top(), band.width(), 2), PaleGold);
  const double y = band.bottom() - 62.0;
  QPainterPath stroke(QPointF(-10, y + 18));
  stroke.cubicTo(QPointF(130, y + 74), QPointF(210, y - 46), QPointF(330, y + 8));
  stroke.cubicTo(QPointF(440, y + 58), QPointF(500, y - 30), QPointF(width() + 10, y - 6));
  QColor colour = PaleGold;
  for (const auto& [thickness, alpha] : {std::pair{7.0, 46}, std::pair{2.2, 190}}) {
    colour.setAlpha(alpha);
    painter.setPen(QPen(colour, thickness, Qt::SolidLine, Qt::RoundCap));
    painter.drawPath(stroke);
  }
}

void Splash::PrintCentred(QPainter& painter, double points, int twipsUnderMiddle, const QString& text) const {
  painter.setFont(SansFont(points));
  const int top = height() / 2 + twipsUnderMiddle / TwipsPerPixel;
  painter.drawText(QRect(0, top, width(), painter.fontMetrics().height()), Qt::AlignHCenter, text);
}

const RegisteredWindow registered("frmSplash", Make<Splash>);

}  // namespace

}  // namespace quillane
