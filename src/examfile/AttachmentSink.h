// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace quorvantis {

/// Gets the content of attached files from a reader, for those who want to know it without having it
/// unpacked.
class AttachmentSink {
 public:
  virtual ~AttachmentSink() = default;

  /// A file of question `question` begins, or one of the exam as a whole (0). `slot` is its index in the list
  /// and `name` its display name, which the author of the exam file chose.
  virtual void Begin(int question, unsigned slot, const std::u16string& name) = 0;

  /// Whether the content of the file that has begun last is wanted, all `size` bytes of it. Otherwise it is
  /// passed over, which takes no time.
  virtual bool WantsContent(std::int64_t /*size*/) { return true; }

  /// The next bytes of the file that has begun last. There are none if it is empty.
  virtual void Content(std::string_view bytes) = 0;
};

}  // namespace quorvantis
