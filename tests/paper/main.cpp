#include <gtest/gtest.h>

#include <QApplication>

#include "qt/text_measure.h"

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  quillane::InstallTextMeasure();
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
