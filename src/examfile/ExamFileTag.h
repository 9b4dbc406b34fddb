// SPDX-License-Identifier: MIT
#pragma once

#include "examfile/ByteSource.h"
#include "examfile/ExamFileForm.h"

#include <optional>

namespace quorvantis {

/// How the fields of `source` are stored when it begins with the tag of `version`; nothing when it does not.
/// Takes no bytes.
std::optional<FieldEncoding> EncodingByTag(ByteSource& source, const ExamFileVersion& version);

/// The bytes of mark and tag, before the first field.
std::size_t BytesBeforeTitle(const ExamFileForm& form);

}  // namespace quorvantis
