// SPDX-License-Identifier: MIT
#pragma once

#include "editor/ExamEditor.h"

#include <nlohmann/json_fwd.hpp>

namespace quorvantis::cli {

/// What the window would show, and the document's attachment lists behind it.
nlohmann::ordered_json EditorStateToJson(const ExamEditor& editor);

}  // namespace quorvantis::cli
