// SPDX-License-Identifier: MIT
// Options in another order, and the key that goes with it.
#pragma once

#include "model/ExamQuestion.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace quorvantis {

/// Which option of the source stands at each place: 0 for A to 4 for E, each once.
using OptionOrder = std::array<std::size_t, kOptionCount>;

inline constexpr OptionOrder kSourceOrder{0, 1, 2, 3, 4};

/// Whether each option stands at one place.
bool IsOptionOrder(const OptionOrder& order);

/// Whether the key can follow options that move: it consists of letters of options, each at most once, in
/// order. Only files from elsewhere have other keys.
bool CanMoveKey(const ExamQuestion& question);

/// The letters of the key after the options have moved, in order and in the case that they had.
std::u16string MovedKey(std::u16string_view letters, const OptionOrder& order);

/// Puts the options in the order, and the key with them. The question's key must be one that can move, unless
/// the order is that of the source, which changes nothing.
void MoveOptions(ExamQuestion& question, const OptionOrder& order);

}  // namespace quorvantis
