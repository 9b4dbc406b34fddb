// SPDX-License-Identifier: MIT
// HTML of a question that refers to files: how it is written, and how it is read.
#pragma once

#include "exchange/form/Format.h"
#include "exchange/markup/Markup.h"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// What a question is called in lists: its first words, or its number if it has no text.
std::string NameOfQuestion(const ExchangedQuestion& question);

/// Whether users see a picture when a page shows the file as one.
bool IsPictureName(std::u16string_view name);

/// The names of the files, each made different from those before it.
std::vector<std::u16string> UniqueNames(const std::vector<ExchangedFile>& files);

/// The same for names in a package, which are those of PackageName().
std::vector<std::string> PackageNames(const std::vector<ExchangedFile>& files);

/// HTML that shows the files of a question below its text: pictures in place, other files as links.
/// `addresses` has the address of each file.
std::u16string HtmlOfFiles(const std::vector<ExchangedFile>& files, const std::vector<std::string>& addresses,
                           HtmlDialect dialect);

/// The text of an option or another part of `question` whose files are those from number `first` on. Where it
/// has no text, their names stand for them. Tells that they now stand below the text of the question.
std::u16string TextOfPart(std::u16string text, const ExchangedQuestion& question, std::size_t first,
                          ExchangeNotes& notes);

/// Whether a question that is read takes the file `name`, too. One that exceeds what any exam takes is told.
bool TakesFile(const ExchangedQuestion& question, std::u16string_view name, ExchangeNotes& notes);

/// Reads the HTML of one question, and collects the files that it refers to.
class HtmlReading {
 public:
  /// Finds the file of an address that is inside the source, or returns nothing.
  using FileFinder = std::function<std::optional<ExchangedFile>(std::u16string_view address)>;

  HtmlReading(ReadingTools& tools, FileFinder find) : tools_(tools), find_(std::move(find)) {}

  /// An exam text. Files that it refers to go to `question`; what is not in the source is told.
  std::u16string Read(std::u16string_view html, ExchangedQuestion& question);

  /// The same for a text that has been read already.
  std::u16string Take(ReadMarkup read, ExchangedQuestion& question);

 private:
  std::optional<ExchangedFile> FileOf(std::u16string_view address);

  ReadingTools& tools_;
  FileFinder find_;
};

}  // namespace quorvantis
