// SPDX-License-Identifier: MIT
// The addresses of pictures and links in HTML.
#pragma once

#include <string>
#include <string_view>

namespace quorvantis {

/// Whether a browser would run what the address says.
bool RunsSomething(std::u16string_view address);

/// Whether it leads out of the file that it stands in.
bool IsOfTheNet(std::u16string_view address);

/// The name of the file at the end of an address: "Fig 1.png" for "x/Fig%201.png?a=b".
std::u16string FileNameIn(std::u16string_view address);

/// A file name as packages can have it: what no address has to escape, and as long as before. Some programs
/// escape addresses once more, or unpack names to disks that take fewer characters.
std::u16string PackageName(std::u16string_view name);

/// Whether a file of a package, which may have a number and "-" in front, was called `name` before, with or
/// without PackageName().
bool WasCalled(std::u16string_view packageName, std::u16string_view name);

/// A name as part of an address.
std::string AddressPart(std::u16string_view name);

}  // namespace quorvantis
