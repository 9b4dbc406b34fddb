// SPDX-License-Identifier: MIT
#pragma once

#include "exchange/form/ExchangeLimits.h"
#include "exchange/form/Format.h"
#include "platform/documents/ZipPackage.h"

#include <map>
#include <memory>
#include <optional>
#include <pugixml.hpp>
#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// A package of questions: a zip archive with a manifest, or a single XML file. Parts are only read into
/// memory, so their names are harmless; a name that leaves the package finds nothing.
class QtiPackage {
 public:
  QtiPackage(const ExchangeSource& source, ReadingTools& tools);

  bool IsSingleFile() const { return zip_ == nullptr; }

  /// Parses a part; false if there is none or it is no XML, which is told.
  bool Parse(const std::string& name, pugi::xml_document& document);

  /// The names of all parts; none of a single file.
  const std::vector<std::string>& Names() const { return names_; }

  /// The names of the parts whose resources in the manifest have a type that begins with one of `types`, in
  /// the order of the manifest. Of a single file: its name.
  std::vector<std::string> PartsOfType(std::initializer_list<std::string_view> types);

  /// The file that `address` leads to from part `from`, kept for the exam.
  std::optional<ExchangedFile> Find(const std::string& from, std::u16string_view address);

  /// The file at a path in the package; its first folder may be missing.
  std::optional<ExchangedFile> FindAnywhere(std::u16string_view path);

 private:
  /// A part of at most `limit` bytes. What is unpacked is taken from `left`. `zip_` must be there.
  PackagePart Read(const std::string& name, std::size_t limit, std::size_t& left);
  void TellUnread(WordResult result, const std::string& name);
  std::optional<ExchangedFile> Keep(const std::string& name);

  const ExchangeSource& source_;
  ReadingTools& tools_;
  std::unique_ptr<ZipPackage> zip_;  ///< null for a single file
  std::vector<std::string> names_;
  std::string root_;                           ///< the folder of the manifest, with a slash at its end
  std::size_t xmlLeft_ = kMaxSourceFile;       ///< bytes that may still be unpacked of parts with questions
  std::size_t filesLeft_ = kMaxUnpackedFiles;  ///< bytes that may still be unpacked of other parts
  std::map<std::string, std::optional<ExchangedFile>> kept_;
};

/// Whether a file is a package whose manifest, or an XML file that itself, has one of the words near its
/// beginning.
bool PackageMentions(const ExchangeSource& source, std::initializer_list<std::string_view> words);

/// Whether a file is an archive that cannot be read, or whose manifest cannot: damaged, encrypted or too
/// large. Who reads it tells that.
bool IsUnreadablePackage(const ExchangeSource& source);

}  // namespace quorvantis
