#include "editing/grid.h"

#include <cmath>

#include "model/frame.h"
#include "model/proposal.h"
#include "model/report.h"
#include "model/upcalls.h"
#include "platform/numbers.h"
#include "ui/desk.h"

namespace quillane {

namespace {

bool& DrawnOn(const Page& page) {
  return layoutAids.gridDrawn[page.window];
}

float TwipsOf(const QString& inches) {
  const float twips = ToSingle(inches) * sheet::TwipsPerInch;
  if (!std::isfinite(twips)) Raise(errors::Overflow);
  return twips;
}

}  // namespace

void DrawGrid(const Page& page) {
  DrawnOn(page) = true;
  layoutAids.GridPoints.clear();
  const float step = layoutAids.SnapValue;
  if (step < FinestGrid) return;
  for (float y = step; y < sheet::Height - step; y += step) {
    // The first point of a row is set before its place is looked at.
    float x = step;
    do {
      layoutAids.GridPoints.push_back({x, y});
      x += step;
    } while (x < sheet::Width - step);
  }
}

std::array<float, 7> CentreLines(float length) {
  std::array<float, 7> places{};
  for (size_t i = 0; i < places.size(); ++i) places[i] = length * static_cast<float>(i + 1) / 8;
  return places;
}

void ClearGrid(const Page& page) {
  if (!DrawnOn(page)) return;
  DrawnOn(page) = false;
  upcalls().RedrawPage(page.window);
}

void DrawGridCommand() {
  Guarded("DrawGrid", [] {
    const Page& front = page(editing.FrontWindow());
    DrawGrid(front);
    upcalls().RedrawPage(front.window);
  });
}

void ClearGridCommand() {
  ClearGrid(page(editing.FrontWindow()));
}

void AlignFormToSnap() {
  const float snap = layoutAids.SnapValue;
  // A sheet that is not in front comes back with its top at 0, which every snap divides.
  if (snap <= 0 || editing.FrontWindow() != 0) return;
  frame().sheetTop = std::trunc(frame().sheetTop / snap) * snap;
  if (frame().sheetMoved) frame().sheetMoved();
}

QString SnapText() {
  return SingleText(layoutAids.SnapValue / sheet::TwipsPerInch);
}

bool TakeSnap(const QString& inches) {
  if (!IsNumeric(inches)) {
    Tell(QStringLiteral("Not a Number"));
    return false;
  }
  layoutAids.SnapValue = TwipsOf(inches);
  return true;
}

QString SnapToolTip(const QString& inches) {
  return SingleText(TwipsOf(inches)) + QStringLiteral(" Twips");
}

}  // namespace quillane
