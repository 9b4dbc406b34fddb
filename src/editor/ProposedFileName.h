// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace quorvantis {

/// The name that Save As proposes for an exam of this title: the title as far as every file system takes it,
/// and no name of a document; "MyExam" when nothing of it is left.
std::u16string ProposedFileName(std::u16string_view title);

}  // namespace quorvantis
