// SPDX-License-Identifier: MIT
#include "versions/folder/CopyingReport.h"

#include "versions/plan/CopyingChance.h"

namespace quorvantis {
namespace {

std::vector<int> KeysOf(const ExamPaper& exam, const PlannedVersion& version) {
  std::vector<int> keys;
  for (std::size_t place = 0; place < version.questions.size(); ++place)
    keys.push_back(KeyAfterMoving(exam.Question(version.questions[place]), version.options[place]));
  return keys;
}

}  // namespace

std::vector<CopyingPair> CopyingReport(const ExamPaper& exam, const VersionPlan& plan) {
  std::vector<std::vector<int>> keys;
  for (const PlannedVersion& version : plan.versions) keys.push_back(KeysOf(exam, version));
  std::vector<CopyingPair> pairs;
  for (std::size_t first = 0; first < keys.size(); ++first) {
    for (std::size_t second = first + 1; second < keys.size(); ++second) {
      CopyingPair pair{first, second};
      for (std::size_t place = 0; place < keys[first].size(); ++place) {
        const bool isSame = plan.versions[first].questions[place] == plan.versions[second].questions[place];
        pair.sameQuestions += isSame ? 1 : 0;
        pair.sameKeys += keys[first][place] != 0 && keys[first][place] == keys[second][place] ? 1 : 0;
      }
      pairs.push_back(pair);
    }
  }
  return pairs;
}

}  // namespace quorvantis
