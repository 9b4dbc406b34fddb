// SPDX-License-Identifier: MIT
#include "exchange/gift/GiftText.h"

#include "exchange/form/TextSource.h"
#include "exchange/gift/GiftFormat.h"

#include <algorithm>
#include <utility>

namespace quorvantis {
namespace {

constexpr std::u16string_view kBraces = u"{}";

/// Whether the last brace of a line opens.
bool EndsOpen(std::u16string_view line) {
  bool isOpen = false;
  for (std::size_t at = FindUnprotected(line, kBraces); at != line.npos;
       at = FindUnprotected(line, kBraces, at + 1))
    isOpen = line[at] == u'{';
  return isOpen;
}

bool ClosesFirst(std::u16string_view block) {
  const std::size_t at = FindUnprotected(block, kBraces);
  return at != block.npos && block[at] == u'}';
}

/// How many braces are open behind a block, if so many were in front of it.
int DepthBehind(std::u16string_view block, int depth) {
  for (std::size_t at = FindUnprotected(block, kBraces); at != block.npos;
       at = FindUnprotected(block, kBraces, at + 1))
    depth = std::max(0, depth + (block[at] == u'{' ? 1 : -1));
  return depth;
}

/// The first block from `from` on that has a brace.
std::size_t NextWithBrace(const std::vector<GiftBlock>& blocks, std::size_t from) {
  while (from < blocks.size() && FindUnprotected(blocks[from].text, kBraces) == std::u16string::npos) ++from;
  return from;
}

bool BeginsQuestion(std::u16string_view line) {
  return line.starts_with(u"::") || line.starts_with(kGiftCategory);
}

/// Cuts at blank lines, and before a title or a category that stands below answers.
std::vector<GiftBlock> BlocksByLines(std::u16string_view text) {
  std::vector<GiftBlock> blocks(1);
  bool hasAnswers = false;
  for (const std::u16string_view line : LinesOf(text)) {
    const std::u16string_view trimmed = Trimmed(line);
    if (trimmed.starts_with(u"//")) {
      blocks.back().hasTags = blocks.back().hasTags || trimmed.find(u"[tag:") != trimmed.npos;
      continue;
    }
    const bool isNext = trimmed.empty() || (hasAnswers && BeginsQuestion(trimmed));
    if (isNext && !blocks.back().text.empty()) blocks.emplace_back();
    if (isNext) hasAnswers = false;
    if (trimmed.empty()) continue;
    blocks.back().text.append(line).push_back(u'\n');
    const std::size_t close = FindUnprotected(line, u"}");
    if (close != line.npos) hasAnswers = !EndsOpen(line);
  }
  return blocks;
}

}  // namespace

std::size_t FindUnprotected(std::u16string_view text, std::u16string_view wanted, std::size_t from) {
  for (std::size_t i = from; i < text.size(); ++i) {
    if (text[i] == u'\\') {
      ++i;
    } else if (wanted.find(text[i]) != wanted.npos) {
      return i;
    }
  }
  return text.npos;
}

std::size_t FindUnprotectedWord(std::u16string_view text, std::u16string_view word) {
  for (std::size_t at = FindUnprotected(text, word.substr(0, 1)); at != text.npos;
       at = FindUnprotected(text, word.substr(0, 1), at + 1)) {
    if (text.substr(at).starts_with(word)) return at;
  }
  return text.npos;
}

std::u16string Unprotected(std::u16string_view text) {
  std::u16string plain;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char16_t next = i + 1 < text.size() ? text[i + 1] : u' ';
    if (text[i] == u'\\' && next == u'n') {
      plain.push_back(u'\n');
      ++i;
    } else if (text[i] == u'\\' && kGiftSpecial.find(next) != kGiftSpecial.npos) {
      plain.push_back(text[++i]);
    } else {
      plain.push_back(text[i]);
    }
  }
  return plain;
}

std::u16string Protected(std::u16string_view text) {
  std::u16string escaped;
  for (const char16_t unit : text) {
    if (unit == u'\n') {
      escaped += u"\\n";
      continue;
    }
    if (kGiftSpecial.find(unit) != kGiftSpecial.npos) escaped.push_back(u'\\');
    escaped.push_back(unit);
  }
  return escaped;
}

std::vector<GiftBlock> GiftBlocks(std::u16string_view text) {
  std::vector<GiftBlock> blocks = BlocksByLines(text);
  std::vector<GiftBlock> joined;
  for (std::size_t i = 0; i < blocks.size();) {
    GiftBlock block = std::move(blocks[i++]);
    int depth = DepthBehind(block.text, 0);
    while (depth > 0) {
      const std::size_t end = NextWithBrace(blocks, i);
      if (end == blocks.size() || !ClosesFirst(blocks[end].text)) break;
      depth = DepthBehind(blocks[end].text, depth);
      for (; i <= end; ++i) {
        block.text.append(u"\n").append(blocks[i].text);
        block.hasTags = block.hasTags || blocks[i].hasTags;
      }
    }
    if (!Trimmed(block.text).empty()) joined.push_back(std::move(block));
  }
  return joined;
}

}  // namespace quorvantis
