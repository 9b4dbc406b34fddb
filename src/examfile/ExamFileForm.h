// SPDX-License-Identifier: MIT
#pragma once

#include "examfile/ByteSource.h"
#include "examfile/ExamFileLayout.h"

namespace quorvantis {

/// Which version a file has and how its fields are stored.
struct ExamFileForm {
  const ExamFileVersion* version;
  FieldEncoding encoding;
};

/// Recognises a file by its tag and leaves `source` at its first field behind the tag. A file without a known
/// tag is an untagged one, whatever it holds, and is read from its first byte.
ExamFileForm RecogniseForm(ByteSource& source);

}  // namespace quorvantis
