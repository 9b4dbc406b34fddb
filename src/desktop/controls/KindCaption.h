// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/controls/QtText.h"
#include "model/ExamQuestion.h"
#include "platform/StringTable.h"
#include "platform/texts/ProgramTexts.h"

namespace quorvantis {

/// The caption of a kind's button in the main window; of an unknown kind, its number.
inline QString KindCaption(QuestionKind kind, const StringTable& strings) {
  switch (kind) {
    case QuestionKind::Choice:
      return ToQString(strings.Text(text_id::kChoice));
    case QuestionKind::FillIn:
      return ToQString(strings.Text(text_id::kFillIn));
    case QuestionKind::Essay:
      return ToQString(strings.Text(text_id::kEssay));
    case QuestionKind::Oral:
      return ToQString(strings.Text(text_id::kOral));
  }
  return QString::number(static_cast<int>(kind));
}

}  // namespace quorvantis
