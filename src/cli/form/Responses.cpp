// SPDX-License-Identifier: MIT
#include "cli/form/Responses.h"

#include "cli/form/JsonNode.h"

namespace quorvantis::cli {

void FillResponses(FrameSetExam& exam, const nlohmann::json& description) {
  const JsonNode root(description, "");
  if (root.Has("resultScore")) exam.resultScore = root.Member("resultScore").Score();
  TakeNumber(root, "resultPageOption", exam.resultPageOption);
  if (!root.Has("responses")) return;
  for (const JsonNode& entry : root.Member("responses").Elements(kMaxQuestions)) {
    int number = 0;
    TakeNumber(entry, "number", number);
    if (!IsQuestionNumber(number)) entry.Fail("must have a number from 1 to 500");
    TakeText(entry, "text", exam.Question(number).responseText);
    TakeNumber(entry, "value", exam.Question(number).responseValue);
  }
}

}  // namespace quorvantis::cli
