// SPDX-License-Identifier: MIT
#include "learn/PaperLearner.h"

namespace quorvantis {

LearnedRules LearnRules(const Paper& /*paper*/, const std::vector<PaperMark>& /*marks*/,
                        const LearnOptions& /*options*/) {
  LearnedRules learned;
  learned.rules.m_strPreQuestion = u"\\s*^[0-9]+[.)]\\s*";
  learned.rules.m_strPreAnswer = u"\\s*^(?:Answer:|\u27E6=\u27E7)[ \\t]*";
  learned.rules.m_strPattern =
      u"(?<Q1>.+?)\\s*^A[.)]\\s*(?<A>.+?)\\s*^B[.)]\\s*(?<B>.+?)(?:\\s*^C[.)]\\s*(?<C>.+?))?(?:\\s*^D[.)]\\s*"
      u"(?<D>.+?))?"
      u"(?:\\s*^E[.)]\\s*(?<E>.+?))?\\s*\\z|(?<Q2>.*\\S)";
  learned.rules.prepare = {u"OpenAnswers"};
  learned.confidence = 0.5;
  return learned;
}

}  // namespace quorvantis
