// SPDX-License-Identifier: MIT
#pragma once

#include "platform/StringTable.h"

#include <map>
#include <string>
#include <vector>

namespace quorvantis {

/// Something that a conversion could not keep.
struct ExchangeNote {
  int question = 0;                      ///< in the file or exam that is read; 0: it is about the whole
  int text = 0;                          ///< the number of the text in the string table
  std::vector<std::u16string> values{};  ///< for its placeholders, at most two

  bool operator==(const ExchangeNote&) const = default;
};

/// Collects what a conversion has to tell, in the order of the questions. The same is told once a question. A
/// file that earns more notes of a kind than anybody reads has the others counted, in a note at the front.
class ExchangeNotes {
 public:
  /// What follows is about this question; 0: about the whole.
  void Begin(int question) { question_ = question; }
  int Question() const { return question_; }

  void Tell(int text, std::vector<std::u16string> values = {});

  const std::vector<ExchangeNote>& All() const { return notes_; }

 private:
  /// Whether the question has this note, or so many that a further one is only counted.
  enum class Place { New, There, TooMany };

  Place PlaceFor(const ExchangeNote& note) const;
  void CountOneMore(ExchangeNote note);

  int question_ = 0;
  int unlisted_ = 0;  ///< how many are not among the notes
  ExchangeNote lastUnlisted_{};
  std::map<int, int> ofEachKind_;  ///< how many notes there are of a text
  std::vector<ExchangeNote> notes_;
};

/// "its files are left out".
std::u16string NoteText(const ExchangeNote& note, const StringTable& strings);

/// "question 7: its files are left out".
std::u16string NoteLine(const ExchangeNote& note, const StringTable& strings);

/// A text for use inside a note: its first words, without markup and line ends.
std::u16string Excerpt(std::u16string_view text);

}  // namespace quorvantis
