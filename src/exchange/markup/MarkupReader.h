// SPDX-License-Identifier: MIT
#pragma once

#include "exchange/markup/Markup.h"
#include "exchange/markup/MarkupPieces.h"
#include "exchange/markup/ReadTag.h"
#include "text/PageTokens.h"

#include <cstddef>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

enum class MarkupSource {
  ExamText,  ///< a line end is a line break, and what is no tag of HTML is text
  Html,
};

/// Takes a text with markup to pieces.
class MarkupReader {
 public:
  MarkupReader(std::u16string_view text, MarkupSource source);

  /// To be called once.
  std::vector<MarkupPiece> Read();

  const MarkupLosses& Losses() const { return losses_; }
  std::vector<MarkupReference>& References() { return references_; }

 private:
  void ReadText(std::size_t end);
  void ReadCharacters(std::size_t end);
  void ReadWhiteSpace(std::size_t end);
  void AddCharacter();
  void ReadHidden(const PageToken& token);
  void ReadElement(const PageToken& token);
  bool TakeFormula(const PageToken& token);
  void AddPieces(std::u16string_view html);
  void TakeForText(const PageToken& token);
  void Take(const ReadTag& tag, const MarkupTag& row);
  void TakeBegin(const ReadTag& tag, const MarkupTag& row);
  void TakeSpan(const ReadTag& tag);
  void BeginMedia(const ReadTag& tag);
  void EndMedia(const ReadTag& tag);
  void TakeLink(const ReadTag& tag);
  void TakeCell(const ReadTag& tag);
  void TellLoss(const ReadTag& tag, const MarkupTag& row);
  void SkipContent(const ReadTag& tag);
  void AddReference(std::u16string_view address, std::u16string_view label);

  /// A sound or a clip that has begun.
  struct OpenMedia {
    std::size_t mark = 0;
    std::size_t references = 0;  ///< how many were there before
  };

  std::u16string_view text_;
  MarkupSource source_;
  PageTokens tokens_;
  std::size_t at_ = 0;
  MarkupPieces pieces_;
  MarkupLosses losses_;
  std::vector<MarkupReference> references_;
  std::vector<std::size_t> referenceMarks_;  ///< of each reference, behind it
  std::vector<const MarkupTag*> spans_;      ///< of open spans; null for one that is nothing but a span
  std::u16string linkAddress_;               ///< of the open link
  std::size_t linkMark_ = 0;
  std::optional<OpenMedia> media_{};
  bool linkIsOpen_ = false;
  bool rowHasCells_ = false;
  int preDepth_ = 0;
  std::set<std::u16string> unended_;  ///< elements whose end was looked for in vain
};

}  // namespace quorvantis
