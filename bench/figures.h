// The groups of figures, each over the one editor.
#pragma once

#include "bench/bench_editor.h"
#include "bench/report.h"

namespace bench {

/// Each measures what the report wants of its group. Throws std::exception.
void FrameFigures(BenchEditor& editor, const Report& report);
void RecordFigures(BenchEditor& editor, const Report& report);
void DocumentFigures(BenchEditor& editor, const Report& report);
void PickFigures(BenchEditor& editor, const Report& report);
void PlayFigures(BenchEditor& editor, const Report& report);
void DriveFigures(BenchEditor& editor, const Report& report);
void SearchFigures(BenchEditor& editor, const Report& report);
void MemoryFigures(BenchEditor& editor, const Report& report);

/// How the time grows with the count, from 1,000 to kManyPieces: 1 for in proportion.
double GrowthExponent(double timeOfThousand, double timeOfMany);

}  // namespace bench
