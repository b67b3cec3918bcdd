// Start and memory, each in a fresh process.
#pragma once

namespace quillane::bench {

/// What a fresh process runs: starts, opens, pages through and prints, and says when and with how much
/// memory.
int RunAsChild(const char* programFolder);
/// Starts such processes and bare ones in turn, and prints their lines of the report.
void MeasureStarts(int times);

}  // namespace quillane::bench
