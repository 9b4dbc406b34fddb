// SPDX-License-Identifier: MIT
#pragma once

#include "check/ExamCheck.h"
#include "model/document/FrameSetExam.h"
#include "platform/posix/PosixFiles.h"
#include "support/RecordingWorld.h"
#include "support/TemporaryFolder.h"
#include "text/PathText.h"
#include "text/Utf.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quorvantis::test {

/// An exam to check, and its findings as "7 choice-without-key".
class CheckTest : public testing::Test {
 protected:
  static ExamQuestion Choice(std::u16string text, OptionTexts options, std::u16string letters) {
    ExamQuestion question;
    question.text = std::move(text);
    question.options = std::move(options);
    question.answerLetters = std::move(letters);
    return question;
  }
  static ExamQuestion FillIn(std::u16string text, std::u16string answers) {
    ExamQuestion question;
    question.kind = QuestionKind::FillIn;
    question.text = std::move(text);
    question.answerText = std::move(answers);
    return question;
  }
  static ExamQuestion Essay(std::u16string text, std::u16string answer) {
    ExamQuestion question;
    question.kind = QuestionKind::Essay;
    question.text = std::move(text);
    question.essayAnswer = std::move(answer);
    return question;
  }

  void Attach(ExamQuestion& question, const std::string& name, std::string_view bytes) {
    const std::filesystem::path file = WriteBytes(folder / name, bytes);
    std::size_t i = 0;
    while (!question.attachmentPaths[i].empty()) ++i;
    question.attachmentPaths[i] = PathToText(file);
    question.attachmentNames[i] = PathToText(file.filename());
  }

  std::vector<Finding> Check() const { return CheckExam(exam); }

  std::vector<std::string> Found() const {
    std::vector<std::string> found;
    for (const Finding& finding : Check())
      found.push_back(std::to_string(finding.place.question) + " " + std::string(finding.rule));
    return found;
  }

  TemporaryFolder folder;
  PosixFiles files;
  RecordingWorld world{folder / "app", files};
  FrameSetExam exam{world.services};
};

using Rules = std::vector<std::string>;

}  // namespace quorvantis::test
