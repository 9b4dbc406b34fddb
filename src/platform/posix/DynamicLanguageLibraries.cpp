// SPDX-License-Identifier: MIT
#include "platform/posix/DynamicLanguageLibraries.h"

#include "platform/posix/ElfFile.h"
#include "text/Utf.h"

#include <quorvantis/LanguageLibrary.h>

#include <dlfcn.h>

namespace quorvantis {
namespace {

struct Unload {
  void operator()(void* library) const { ::dlclose(library); }
};
using LibraryHandle = std::unique_ptr<void, Unload>;

/// The exported function of that name and type, or null.
template <class Function>
Function* Exported(const LibraryHandle& library, const char* name) {
  return reinterpret_cast<Function*>(::dlsym(library.get(), name));
}

std::u16string TextOrNone(const char* text) {
  return text == nullptr ? std::u16string() : Utf8ToUtf16(text);
}

class DynamicLanguageLibrary : public LanguageLibrary {
 public:
  explicit DynamicLanguageLibrary(LibraryHandle library)
      : library_(std::move(library)),
        id_(Exported<decltype(GetLanguageID)>(library_, "GetLanguageID")),
        text_(Exported<decltype(GetLanguageText)>(library_, "GetLanguageText")),
        dialogText_(Exported<decltype(GetLanguageDialogText)>(library_, "GetLanguageDialogText")),
        bitmap_(Exported<decltype(GetLanguageBitmap)>(library_, "GetLanguageBitmap")) {}

  std::optional<std::uint16_t> Id() const override {
    return id_ == nullptr ? std::nullopt : std::optional(static_cast<std::uint16_t>(id_()));
  }

  bool HasText(int number) const override { return text_ != nullptr && text_(number) != nullptr; }

  std::u16string Text(int number) const override {
    return text_ == nullptr ? std::u16string() : TextOrNone(text_(number));
  }

  std::u16string DialogText(int dialog, int control) const override {
    return dialogText_ == nullptr ? std::u16string() : TextOrNone(dialogText_(dialog, control));
  }

  std::span<const std::byte> Bitmap(std::string_view name, int scale) const override {
    std::size_t size = 0;
    const unsigned char* bytes =
        bitmap_ == nullptr ? nullptr : bitmap_(std::string(name).c_str(), scale, &size);
    if (bytes == nullptr) return {};
    return std::as_bytes(std::span(bytes, size));
  }

 private:
  LibraryHandle library_;
  decltype(&GetLanguageID) id_;
  decltype(&GetLanguageText) text_;
  decltype(&GetLanguageDialogText) dialogText_;
  decltype(&GetLanguageBitmap) bitmap_;
};

}  // namespace

std::unique_ptr<LanguageLibrary> DynamicLanguageLibraries::Load(const std::filesystem::path& file) {
  if (!IsWholeElfFile(file)) return nullptr;
  LibraryHandle library(::dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL));
  return library ? std::make_unique<DynamicLanguageLibrary>(std::move(library)) : nullptr;
}

}  // namespace quorvantis
