// The sheet under VScroll1, as keys and moves of the focus slide it.
#include <algorithm>

#include "editing/areas.h"
#include "model/frame.h"

namespace quillane {

namespace {

constexpr int SheetEnd = 15870;   // the sheet and the 30 twips that stay free under it
constexpr float RoomBelow = 510;  // an area counts as seen with a row's room under its top
constexpr float RoomAbove = 300;

int VisibleHeight() {
  return static_cast<int>(frame().clientHeight);
}

void ScrollTo(int value) {
  const int furthest = std::max(0, SheetEnd - VisibleHeight());
  frame().VScroll1.Value = std::clamp(value, 0, furthest);
}

bool Shows(const Control& control, int key) {
  const auto top = static_cast<float>(frame().VScroll1.Value);
  if (key == keys::PageUp) return control.Top() - RoomAbove >= top;
  return control.Top() + RoomBelow <= top + frame().clientHeight;
}

}  // namespace

void SetDialPosition(int key) {
  const int height = VisibleHeight();
  const int value = frame().VScroll1.Value;
  if (key == keys::PageUp) {
    ScrollTo(value >= height ? value - height : 0);
  } else if (key == keys::PageDown) {
    ScrollTo(value + 2 * height >= SheetEnd ? SheetEnd - height : value + height / 2);
  }
}

void ScrollToShow(const Control& control, int key) {
  while (!Shows(control, key)) {
    const int before = frame().VScroll1.Value;
    SetDialPosition(key);
    if (frame().VScroll1.Value == before) return;
  }
}

}  // namespace quillane
