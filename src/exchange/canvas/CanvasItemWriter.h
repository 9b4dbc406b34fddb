// SPDX-License-Identifier: MIT
#pragma once

#include "exchange/form/ExchangedExam.h"
#include "exchange/xml/XmlText.h"

#include <string>
#include <vector>

namespace quorvantis {

/// Writes a question as an item of QTI 1.2. `addresses` has the address of each file of the question.
void WriteCanvasItem(const ExchangedQuestion& question, const std::string& identifier,
                     const std::vector<std::string>& addresses, XmlWriter& xml);

}  // namespace quorvantis
