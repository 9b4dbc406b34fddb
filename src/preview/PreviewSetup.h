// SPDX-License-Identifier: MIT
#pragma once

#include "platform/StringTable.h"
#include "preview/ExamGateway.h"

#include <filesystem>

namespace quorvantis {

/// The gateway of a program to the exam pages in `applicationFolder`, with the converters of this machine and
/// what lies beside the program. `pages` must outlive the gateway.
GatewaySetup SetUpGateway(const std::filesystem::path& applicationFolder, const StringTable& strings,
                          const ComposedPages& pages);

}  // namespace quorvantis
