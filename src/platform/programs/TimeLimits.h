// SPDX-License-Identifier: MIT
// How long other programs may run.
#pragma once

#include <chrono>

namespace quorvantis {

/// A document that is imported or exported. The user waits for it and can cancel.
inline constexpr std::chrono::seconds kLongestDocument{60};

/// A document in a preview, which is shown without it until then.
inline constexpr std::chrono::seconds kLongestShownDocument{30};

/// The images of a document's pages.
inline constexpr std::chrono::seconds kLongestDrawing{60};

/// A PDF file of an exam, each time after the program that makes it has told of progress.
inline constexpr std::chrono::seconds kLongestSheet{120};

/// A program that only looks at a file.
inline constexpr std::chrono::seconds kLongestLook{30};

/// A film. It takes as long as it has to, but a clip that cannot be converted makes no progress.
inline constexpr std::chrono::minutes kLongestFilm{30};
inline constexpr std::chrono::seconds kLongestStandstill{20};

/// How often a waiting caller looks whether a program has ended.
inline constexpr std::chrono::milliseconds kBetweenLooksAtPrograms{20};

}  // namespace quorvantis
