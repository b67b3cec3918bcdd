// What a planner waits for all day, measured in the window of a running program.
#pragma once

namespace quillane::bench {

void MeasureWork(int times);

}  // namespace quillane::bench
