// SPDX-License-Identifier: MIT
#pragma once

#include "model/document/FrameSetExam.h"
#include "platform/posix/PosixFiles.h"
#include "search/ReplacementPlan.h"
#include "support/RecordingWorld.h"
#include "support/TemporaryFolder.h"
#include "text/Utf.h"

#include <gtest/gtest.h>

namespace quorvantis::test {

class SearchTest : public testing::Test {
 protected:
  TemporaryFolder folder;
  PosixFiles files;
  RecordingWorld world{folder / "app", files};
  FrameSetExam exam{world.services};
};

/// Of a SearchQuery.
constexpr bool kPattern = true;

constexpr TextPlace kFirstText{1, ExamFieldName::QuestionText};

/// The text with brackets around each hit.
inline std::u16string Bracketed(const std::u16string& text, const std::vector<SearchHit>& hits) {
  std::u16string bracketed;
  std::size_t done = 0;
  for (const SearchHit& hit : hits) {
    bracketed += text.substr(done, hit.start - done) + u"[" + text.substr(hit.start, hit.length) + u"]";
    done = hit.start + hit.length;
  }
  return bracketed + text.substr(done);
}

}  // namespace quorvantis::test
