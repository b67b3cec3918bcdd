// Measures the main job: start, memory, page change, typing, opening, saving, adding up, printing.
#include <QApplication>
#include <cstdio>
#include <cstring>

#include "address.h"
#include "samples.h"
#include "start.h"
#include "work.h"

int main(int argc, char** argv) {
  using namespace quillane::bench;
  QApplication application(argc, argv);
  if (argc == 3 && std::strcmp(argv[1], "--child") == 0) return RunAsChild(argv[2]);
  constexpr int Usual = 20;
  const int times = argc > 1 ? std::atoi(argv[1]) : Usual;
  if (times < 1) {
    std::fprintf(stderr, "usage: quillane_bench [TIMES]\n");
    return 2;
  }
  PrintHeading();
  MeasureStarts(times);
  MeasureWork(times);
  MeasureAddressBook(times);
  return 0;
}
