// SPDX-License-Identifier: MIT
// Moodle XML: a <quiz> of <question>s, with files inside as base64.
#pragma once

#include "exchange/form/Format.h"

#include <string_view>

namespace quorvantis {

/// What stands before the name of a file inside.
inline constexpr std::u16string_view kMoodleFiles = u"@@PLUGINFILE@@/";

bool LooksLikeMoodleXml(const ExchangeSource& source);

class MoodleXmlReader : public FormatReader {
 public:
  std::optional<ExchangedExam> Read(const ExchangeSource& source, ReadingTools& tools) override;
};

class MoodleXmlWriter : public FormatWriter {
 public:
  std::string Write(const ExchangedExam& exam, const StringTable& strings, Progress& progress) override;
};

}  // namespace quorvantis
