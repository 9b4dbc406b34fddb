// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace quorvantis {

/// The name that Save As proposes for an exam with this title: the part of the title that every file system
/// accepts, without the extension of a document; "MyExam" when nothing is left.
std::u16string ProposedFileName(std::u16string_view title);

}  // namespace quorvantis
