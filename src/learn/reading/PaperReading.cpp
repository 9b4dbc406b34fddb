// SPDX-License-Identifier: MIT
#include "learn/reading/PaperReading.h"

#include "import/prepare/MarkedPaper.h"
#include "platform/DebugOutput.h"

namespace quorvantis {
namespace {

/// Rules are tried too often to tell about each.
class NoDebugOutput : public DebugOutput {
 public:
  void Line(std::u16string_view) override {}
};

}  // namespace

PaperReading ReadByRules(const Paper& paper, const ImportSettings& rules, const CancelHook& isCancelled,
                         PreparationMemory* memory) {
  constexpr int kFirstPicture = 1;
  PaperReading reading;
  reading.marked = rules.m_nTable != 0 ? MarkTables(paper, rules, isCancelled, TraceOrigins::Yes)
                                       : MarkText(paper, rules, isCancelled, TraceOrigins::Yes, memory);
  if (reading.marked.failure) return reading;
  NoDebugOutput debug;
  reading.paper = QuestionTextParser(rules, debug, isCancelled).Parse(reading.marked.text, kFirstPicture);
  return reading;
}

}  // namespace quorvantis
