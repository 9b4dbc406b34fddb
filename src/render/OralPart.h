// SPDX-License-Identifier: MIT
#pragma once

#include "render/RenderFlags.h"

#include <string>

namespace quorvantis {

class PageRenderer;
struct ExamServices;

/// The mark in the number cell of an oral question that was not judged right. Other hosts know these numbers.
enum class OralMarkKind : int { Wrong = 1, Plain = 2 };

/// What a row shows of an oral question: the recorder, a label, or the student's recording. `index` is the
/// question number minus one; `studentNumber` is the student, for hosts that keep oral answers of several.
class OralPart {
 public:
  /// Both must outlive the part.
  OralPart(const PageRenderer& renderer, const ExamServices& services)
      : renderer_(renderer), services_(services) {}

  /// Empty for combinations of flags that no page uses.
  std::u16string OralBlock(int index, int studentNumber, const RenderFlags& flags) const;

  OralMarkKind OralMark(int index, int studentNumber, const RenderFlags& flags) const;

  /// The recording control. All have the same element id; each finds itself by its parameters.
  std::u16string OralRecorderObject(int index) const;

 private:
  std::u16string StoredRecording(int index, std::u16string_view extension) const;
  std::u16string StoredRecordingItem(int index) const;
  std::u16string OralAnswerItem(int index, int studentNumber) const;
  std::u16string Label(int text) const;

  const PageRenderer& renderer_;
  const ExamServices& services_;
};

}  // namespace quorvantis
