// SPDX-License-Identifier: MIT
#pragma once

#include "likeness/QuestionContent.h"
#include "platform/FileDigest.h"

#include <string>
#include <string_view>

namespace quorvantis {

/// By what a question is known in every exam that has it, and after its place or the order of its options has
/// changed: 32 lower-case hexadecimal digits, made of its kind, text, options, answers and files. Case,
/// punctuation, markup and blanks do not count. docs/BANK-QUESTIONS.md tells what is hashed. Contents must
/// have their files by digest (see ContentOf).
std::string QuestionContentKey(const QuestionContent& content, const FileDigest& digest);

/// Whether a text has the form of a key.
bool IsContentKey(std::string_view text);

}  // namespace quorvantis
