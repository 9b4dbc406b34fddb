// SPDX-License-Identifier: MIT
#pragma once

#include "examfile/ExamFileLayout.h"

namespace quorvantis {

/// The version of a file and how its fields are stored.
struct ExamFileForm {
  const ExamFileVersion* version;
  FieldEncoding encoding;
};

}  // namespace quorvantis
