// SPDX-License-Identifier: MIT
#pragma once

#include "examfile/ExamFileLayout.h"

namespace quorvantis {

/// Which version a file has and how its fields are stored.
struct ExamFileForm {
  const ExamFileVersion* version;
  FieldEncoding encoding;
};

}  // namespace quorvantis
