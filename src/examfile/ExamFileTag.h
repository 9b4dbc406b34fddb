// SPDX-License-Identifier: MIT
#pragma once

#include "examfile/ByteSource.h"
#include "examfile/ExamFileForm.h"

#include <optional>

namespace quorvantis {

/// How the fields of `source` are stored if it begins with the tag of `version`; otherwise nothing. Takes no
/// bytes.
std::optional<FieldEncoding> EncodingByTag(ByteSource& source, const ExamFileVersion& version);

/// The bytes of the mark and the tag, before the first field.
std::size_t BytesBeforeTitle(const ExamFileForm& form);

}  // namespace quorvantis
