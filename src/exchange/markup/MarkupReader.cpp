// SPDX-License-Identifier: MIT
#include "exchange/markup/MarkupReader.h"

#include "exchange/markup/Addresses.h"
#include "exchange/markup/MathText.h"
#include "text/AsciiCase.h"
#include "text/HtmlEntities.h"
#include "text/Utf.h"
#include "text/WithoutAround.h"

#include <algorithm>

namespace quorvantis {
namespace {

constexpr std::u16string_view kSpace = u" \t\r\n\f";
constexpr std::size_t kMostSpans = 64;

/// Only what changes how a text looks to a pupil.
bool IsTellingStyle(std::u16string_view style) {
  constexpr std::u16string_view kTelling[] = {u"color", u"font", u"background", u"decoration"};
  return std::any_of(std::begin(kTelling), std::end(kTelling),
                     [style](std::u16string_view word) { return style.find(word) != style.npos; });
}

/// The element that raises or lowers its text as the style does; null if the style does neither.
const MarkupTag* ShiftOfStyle(std::u16string_view style) {
  constexpr std::u16string_view kProperty = u"vertical-align:";
  std::u16string plain = AsciiLower(style);
  std::erase_if(plain, [](char16_t unit) { return unit <= u' '; });
  const std::size_t at = plain.find(kProperty);
  if (at == plain.npos) return nullptr;
  const std::u16string_view value = std::u16string_view(plain).substr(at + kProperty.size());
  if (value.starts_with(u"super")) return FindTag(u"sup");
  return value.starts_with(u"sub") ? FindTag(u"sub") : nullptr;
}

bool IsFormula(std::u16string_view name) {
  return EqualsIgnoringAsciiCase(name.substr(name.rfind(u':') + 1), u"math");  // not found: all of it
}

/// Whether an author's program wrote a tag that HTML does not have, such as "<o:p>", which shows nothing. In
/// "x<y and z>w", the words would be attributes without values.
bool IsMeantAsTag(const ReadTag& tag) {
  return std::all_of(tag.attributes.begin(), tag.attributes.end(),
                     [](const auto& attribute) { return !attribute.second.empty(); });
}

}  // namespace

MarkupReader::MarkupReader(std::u16string_view text, MarkupSource source)
    : text_(text), source_(source), tokens_(text) {}

std::vector<MarkupPiece> MarkupReader::Read() {
  while (const auto token = tokens_.Next()) {
    at_ = token->span.begin;
    if (token->kind == PageTokenKind::Text) {
      ReadText(token->span.end);
    } else if (token->IsTag()) {
      ReadElement(*token);
    } else {
      ReadHidden(*token);
    }
  }
  const std::size_t end = pieces_.EndOfShown();
  for (std::size_t i = 0; i < references_.size(); ++i) references_[i].isFollowed = referenceMarks_[i] < end;
  return pieces_.Finish();
}

void MarkupReader::ReadText(std::size_t end) {
  const std::u16string_view text = text_.substr(0, end);
  while (at_ < end) {
    ReadCharacters(std::min(text.find_first_of(u"&\r\n\t\f ", at_), end));
    if (at_ == end) return;
    if (text_[at_] == u'&') {
      AddCharacter();
    } else {
      ReadWhiteSpace(end);
    }
  }
}

/// Characters that no XML and no page can hold are left out.
void MarkupReader::ReadCharacters(std::size_t end) {
  const auto isValid = [](char16_t unit) { return unit >= u' ' && unit != 0xFFFE && unit != 0xFFFF; };
  std::u16string valid;
  std::copy_if(text_.begin() + static_cast<std::ptrdiff_t>(at_),
               text_.begin() + static_cast<std::ptrdiff_t>(end), std::back_inserter(valid), isValid);
  pieces_.AddText(ReplaceLoneSurrogates(valid));
  at_ = end;
}

/// In HTML a line end is a blank, and those around it do not count. Other blanks stay, as a browser shows the
/// same, and an exam text is to come back as it was.
void MarkupReader::ReadWhiteSpace(std::size_t end) {
  end = std::min(text_.find_first_not_of(kSpace, at_), end);
  const std::u16string_view space = text_.substr(at_, end - at_);
  if (source_ == MarkupSource::Html && preDepth_ == 0) {
    if (space.find_first_not_of(u' ') == space.npos) {
      pieces_.AddText(space);
    } else {
      pieces_.AddSoftBlank();
    }
    at_ = end;
    return;
  }
  for (; at_ < end; ++at_) {
    const char16_t unit = text_[at_];
    if (unit == u'\r' && at_ + 1 < end && text_[at_ + 1] == u'\n') continue;
    if (unit == u'\r' || unit == u'\n') {
      pieces_.AddLineBreak();
    } else if (unit != u'\f') {
      pieces_.AddText(u" ");  // a tab shows as one
    }
  }
}

/// An ampersand, or the character that a reference stands for.
void MarkupReader::AddCharacter() {
  const auto entity = ReadEntity(text_.substr(at_));
  if (!entity) {
    pieces_.AddText(text_.substr(at_++, 1));
    return;
  }
  at_ += entity->length;
  const char32_t code = entity->codePoint;
  const bool isBlank = code == U'\t' || code == U'\n';
  if ((code < U' ' && !isBlank) || code == 0xFFFE || code == 0xFFFF) return;
  std::u16string character;
  AppendCodePoint(character, isBlank ? U' ' : code);
  pieces_.AddText(character);
}

/// A comment or a declaration. In an exam text, only a comment with its end is none of the text. Browsers
/// hide "</3", too, but whoever wrote it did not mean to.
void MarkupReader::ReadHidden(const PageToken& token) {
  const bool isComment = token.kind == PageTokenKind::Comment;
  if (isComment && token.isClosed) return;
  if (source_ == MarkupSource::ExamText || text_[at_ + 1] == u'/') return TakeForText(token);
  // Browsers would hide all behind a comment without an end, but files that are cut together have some.
  if (isComment) tokens_.GoTo(std::min(text_.find(u'>', at_), text_.size() - 1) + 1);
}

void MarkupReader::ReadElement(const PageToken& token) {
  if (TakeFormula(token)) return;
  const MarkupTag* const row = token.isClosed ? FindTag(token.name.Of(text_)) : nullptr;
  const bool isMeant = source_ == MarkupSource::Html || IsMeantAsTag(ReadTagAt(text_, token));
  const bool isUnknown = row == nullptr && token.isClosed && isMeant;
  if (isUnknown) {
    losses_.formatting = true;
  } else if (row != nullptr) {
    at_ = token.span.end;
    Take(ReadTagAt(text_, token), *row);
  } else {
    TakeForText(token);
  }
}

/// A formula becomes a line of text. False if this is none, or one without an end.
bool MarkupReader::TakeFormula(const PageToken& token) {
  const std::u16string_view name = token.name.Of(text_);
  const bool isFormula = source_ == MarkupSource::Html && token.kind == PageTokenKind::BeginTag &&
                         token.isClosed && IsFormula(name);
  if (!isFormula || unended_.contains(AsciiLower(name))) return false;
  const std::size_t end = FindEndTag(text_, token.span.end, name);
  const std::size_t bracket = end == text_.npos ? end : text_.find(u'>', end);
  if (bracket == text_.npos) {
    unended_.insert(AsciiLower(name));
    return false;
  }
  losses_.formula = true;
  AddPieces(MathAsHtml(text_.substr(token.span.end, end - token.span.end)));
  tokens_.GoTo(bracket + 1);
  return true;
}

void MarkupReader::AddPieces(std::u16string_view html) {
  for (const MarkupPiece& piece : MarkupReader(html, MarkupSource::Html).Read()) {
    switch (piece.kind) {
      case MarkupPieceKind::Text:
        pieces_.AddText(piece.text);
        break;
      case MarkupPieceKind::LineBreak:
        pieces_.AddLineBreak();
        break;
      case MarkupPieceKind::Open:
        if (!pieces_.Open(*piece.tag)) losses_.formatting = true;
        break;
      case MarkupPieceKind::Close:
        pieces_.Close(*piece.tag);
        break;
    }
  }
}

/// The bracket is a character, and what follows may be anything.
void MarkupReader::TakeForText(const PageToken& token) {
  pieces_.AddText(u"<");
  tokens_.GoTo(token.span.begin + 1);
}

void MarkupReader::Take(const ReadTag& tag, const MarkupTag& row) {
  TellLoss(tag, row);
  if (!tag.isEnd) return TakeBegin(tag, row);
  switch (row.role) {
    case TagRole::Kept:
      return pieces_.Close(row);
    case TagRole::Block:
      pieces_.EndLine();
      if (row.name == u"pre") preDepth_ = std::max(0, preDepth_ - 1);
      if (row.name == u"tr") rowHasCells_ = false;
      return;
    case TagRole::Link:
      return TakeLink(tag);
    case TagRole::Transparent:
      if (row.name == u"span") TakeSpan(tag);
      return;
    case TagRole::Break:
      return pieces_.AddLineBreak();
    case TagRole::Media:
      return EndMedia(tag);
    case TagRole::Cell:
    case TagRole::Picture:
    case TagRole::Form:
    case TagRole::Removed:
      return;
  }
}

void MarkupReader::TakeBegin(const ReadTag& tag, const MarkupTag& row) {
  switch (row.role) {
    case TagRole::Kept:
      if (!pieces_.Open(row)) losses_.formatting = true;
      return;
    case TagRole::Break:
      return pieces_.AddLineBreak();
    case TagRole::Block:
      pieces_.EndLine();
      if (row.name == u"pre") ++preDepth_;
      if (row.name == u"tr") rowHasCells_ = false;
      if (row.name == u"li") pieces_.AddText(u"\u2022 ");
      return;
    case TagRole::Cell:
      return TakeCell(tag);
    case TagRole::Picture:
      return AddReference(tag.Value(u"src"), tag.Value(u"alt"));
    case TagRole::Media:
      return BeginMedia(tag);
    case TagRole::Link:
      return TakeLink(tag);
    case TagRole::Transparent:
    case TagRole::Form:
      if (row.name == u"span") TakeSpan(tag);
      return;
    case TagRole::Removed:
      return SkipContent(tag);
  }
}

void MarkupReader::TakeSpan(const ReadTag& tag) {
  if (tag.isEnd) {
    if (spans_.empty()) return;
    if (spans_.back() != nullptr) pieces_.Close(*spans_.back());
    spans_.pop_back();
    return;
  }
  const std::u16string_view name = tag.Value(u"class");
  const MarkupTag* row = name.starts_with(kTagClass) ? FindTag(name.substr(kTagClass.size())) : nullptr;
  if (row == nullptr) row = ShiftOfStyle(tag.Value(u"style"));
  if (row != nullptr && (row->role != TagRole::Kept || !pieces_.Open(*row))) row = nullptr;
  if (spans_.size() < kMostSpans) spans_.push_back(row);
}

void MarkupReader::BeginMedia(const ReadTag& tag) {
  const bool holdsText = source_ == MarkupSource::Html && !EqualsIgnoringAsciiCase(tag.name, u"source");
  if (holdsText && !media_) media_ = OpenMedia{pieces_.Mark(), references_.size()};
  AddReference(tag.Value(u"src"), tag.Value(u"alt"));
}

/// What stands in an element for a sound or a clip is shown only where it cannot be played.
void MarkupReader::EndMedia(const ReadTag& tag) {
  if (!media_ || EqualsIgnoringAsciiCase(tag.name, u"source")) return;
  const std::u16string inside = pieces_.TextFrom(media_->mark);
  const std::u16string_view words = WithoutAround(inside, kSpace);
  const auto begin = references_.begin() + static_cast<std::ptrdiff_t>(media_->references);
  const bool isAddress = std::any_of(begin, references_.end(), [words](const MarkupReference& reference) {
    return reference.address == words || FileNameIn(reference.address) == words;
  });
  if (!words.empty() && !isAddress) losses_.formatting = true;
  pieces_.RemoveTextFrom(media_->mark);
  media_.reset();
}

/// A link that is a file leaves the text, with its label if that is only the name of the file.
void MarkupReader::TakeLink(const ReadTag& tag) {
  if (linkIsOpen_) {
    const std::u16string label(WithoutAround(pieces_.TextFrom(linkMark_), kSpace));
    if (IsOfTheNet(linkAddress_)) {
      if (label != linkAddress_) {
        pieces_.AddText(u" (" + linkAddress_ + u")");
        losses_.formatting = true;
      }
    } else if (!linkAddress_.empty() && !linkAddress_.starts_with(u"#")) {
      const std::u16string name = FileNameIn(linkAddress_);
      const bool isName = label == name || WasCalled(name, label);
      if (isName) pieces_.RemoveTextFrom(linkMark_);
      AddReference(linkAddress_, isName ? label : std::u16string());
    }
  }
  linkIsOpen_ = !tag.isEnd;
  linkAddress_ = RunsSomething(tag.Value(u"href")) ? std::u16string() : std::u16string(tag.Value(u"href"));
  if (linkIsOpen_) linkMark_ = pieces_.Mark();
}

void MarkupReader::TakeCell(const ReadTag&) {
  if (rowHasCells_) pieces_.AddText(u" | ");
  rowHasCells_ = true;
}

void MarkupReader::TellLoss(const ReadTag& tag, const MarkupTag& row) {
  const bool isActive = (row.role == TagRole::Removed || row.role == TagRole::Form) && row.isTold;
  if (row.name == u"table") {
    losses_.table = true;
  } else if (row.name == u"math") {
    losses_.formula = true;
  } else if (row.name == u"svg") {
    losses_.drawing = true;
  } else if (isActive && row.name != u"style") {
    losses_.executable = true;
  } else if (row.isTold) {
    losses_.formatting = true;
  }
  for (const auto& [name, value] : tag.attributes) {
    if (name.starts_with(u"on") || RunsSomething(value)) losses_.executable = true;
    if (name == u"style" && IsTellingStyle(value)) losses_.formatting = true;
  }
}

/// Up to the end of the element. A script or style without an end takes the rest, as in a browser.
void MarkupReader::SkipContent(const ReadTag& tag) {
  const std::u16string name = AsciiLower(tag.name);
  if (unended_.contains(name)) return;
  const std::size_t end = FindEndTag(text_, at_, name);
  if (end != text_.npos) return tokens_.GoTo(end);
  unended_.insert(name);
  if (name == u"script" || name == u"style") tokens_.GoTo(text_.size());
}

void MarkupReader::AddReference(std::u16string_view address, std::u16string_view label) {
  if (address.empty()) return;
  if (RunsSomething(address)) {
    losses_.executable = true;
    return;
  }
  references_.push_back({std::u16string(address), std::u16string(label)});
  referenceMarks_.push_back(pieces_.Mark());
}

}  // namespace quorvantis
