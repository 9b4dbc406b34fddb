// SPDX-License-Identifier: MIT
// What several pages have in common.
#pragma once

#include "render/Template.h"

namespace quorvantis {

/// The beginning of the pages that are written as UTF-8.
inline constexpr Template<> kHeadWithEncoding{
    uR"(<HTML>\r\n)"
    uR"(<HEAD>\r\n)"
    uR"(<meta http-equiv="content-type" content="text/html; charset=UTF-8">\r\n)"
    uR"(<TITLE></TITLE>\r\n)"
    uR"(</HEAD>\r\n)"};

/// The beginning of the pages that are written as UTF-16.
inline constexpr Template<> kHeadWithoutEncoding{
    uR"(<HTML>\r\n)"
    uR"(<HEAD>\r\n)"
    uR"(<TITLE></TITLE>\r\n)"
    uR"(</HEAD>\r\n)"};

inline constexpr Template<> kBodyStart{uR"(<BODY>\r\n)"};
inline constexpr Template<> kBodyEnd{uR"(</BODY>\r\n)"};
inline constexpr Template<> kPageEnd{uR"(</HTML>\r\n)"};

}  // namespace quorvantis
