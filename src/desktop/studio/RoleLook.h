// SPDX-License-Identifier: MIT
// How the roles of a paper's parts look: each has a colour and a line of its own, so that nobody needs to see
// colours, on light windows and on dark ones.
#pragma once

#include "learn/reading/PaperRole.h"

#include <QIcon>
#include <QPalette>
#include <QTextCharFormat>

#include <cstdint>

namespace quorvantis {

/// The look of text with a role.
QTextCharFormat LookOf(PaperRole role, const QPalette& palette);

/// Adds the paper's own emphasis (`emphasis` values) to a look.
void AddEmphasis(QTextCharFormat& look, std::uint8_t emphasis, const QPalette& palette);

/// Adds the look of what the teacher has marked.
void AddMarkLook(QTextCharFormat& look, const QPalette& palette);

/// A sample of the look, for a legend: as many letters as `size`, in pixels, has room for. `ratio` is the
/// device pixel ratio.
QIcon SampleOf(PaperRole role, QSize size, const QPalette& palette, const QFont& font, qreal ratio);

}  // namespace quorvantis
