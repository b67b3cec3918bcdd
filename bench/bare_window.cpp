// What every Qt program costs at least: one window with one empty widget.  It says when it has been painted
// and ends.
#include <QApplication>
#include <QMainWindow>

#include "first_paint.h"

int main(int argc, char** argv) {
  using namespace quillane::bench;
  QApplication application(argc, argv);
  QMainWindow window;
  auto* empty = new QWidget(&window);  // the window owns it
  window.setCentralWidget(empty);
  FirstPaint painted([&](QObject* widget) { return widget == empty; },
                     [] {
                       Report("painted");
                       QApplication::quit();
                     });
  QApplication::instance()->installEventFilter(&painted);
  window.showMaximized();
  return QApplication::exec();
}
