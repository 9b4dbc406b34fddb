// SPDX-License-Identifier: MIT
#pragma once

#include "platform/documents/OfficeWordDocuments.h"
#include "support/DocxBuilder.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <string>

namespace quorvantis::test {

/// A text in which objects are visible: "<n>" is a picture, "<#>" an equation.
inline std::u16string Shown(const WordText& text) {
  std::u16string shown = text.characters;
  for (auto object = text.objects.rbegin(); object != text.objects.rend(); ++object) {
    const char16_t digit = static_cast<char16_t>(u'0' + object->picture);
    const std::u16string mark =
        object->kind == WordObjectKind::Equation ? u"<#>" : std::u16string{u'<', digit, u'>'};
    shown.insert(object->position, mark);
  }
  return shown;
}

class WordDocumentsTest : public testing::Test {
 protected:
  WordReadOutcome Open(const DocxBuilder& builder, const WordReadOptions& options = {}) {
    return documents.Open(builder.Write(folder / "test.docx"), options);
  }

  TemporaryFolder folder;
  OfficeWordDocuments documents;
};

}  // namespace quorvantis::test
