// SPDX-License-Identifier: MIT
// Writes rules as text of "ImportExam.ini".
#pragma once

#include "import/marking/ImportSettings.h"
#include "platform/CodePage.h"

#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// A repository as it is written: a name, and for each key a comment that says in words what it finds.
struct Repository {
  std::u16string name;
  ImportSettings rules;
};

/// The section `[number]` with LF line ends: "Name" first, above each rule its comment.
std::u16string RepositorySection(const Repository& repository, int number);

/// What hinders a repository from being added.
enum class RepositoryRefusal {
  None,
  NameEmpty,
  NameTaken,     ///< there is one of this name
  NamePrefix,    ///< the name begins another one's, or another one's begins it; `other` is that name
  NameUnsafe,    ///< line breaks, quotes at both ends, a ";" or blanks at its ends
  RuleTooLong,   ///< over 1023 units; `other` is its key
  RuleUnsafe,    ///< has a line break, or begins or ends so that readers of such files change it; likewise
  CannotEncode,  ///< the file's encoding lacks a character
};

struct AddedRepository {
  RepositoryRefusal refusal = RepositoryRefusal::None;
  std::u16string other{};
  std::string file{};  ///< all bytes of the new file
};

/// Adds a repository at the end of a file of such sections; every other byte stays, but the number behind
/// "Size", and its line ends are those of the file. An empty file becomes a whole one in UTF-8.
AddedRepository AddRepository(std::string_view file, const Repository& repository, const CodePage& codePage);

}  // namespace quorvantis
