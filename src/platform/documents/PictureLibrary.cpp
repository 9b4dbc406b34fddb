// SPDX-License-Identifier: MIT
#include "platform/documents/PictureLibrary.h"

#include <dlfcn.h>
#include <optional>

namespace quorvantis {
namespace {

constexpr const char* kLibrary = "libgd.so.3";

template <class Function>
bool Take(void* library, const char* name, Function& function) {
  function = reinterpret_cast<Function>(::dlsym(library, name));
  return function != nullptr;
}

std::optional<PictureLibrary> Load() {
  void* const library = ::dlopen(kLibrary, RTLD_NOW | RTLD_LOCAL);
  if (library == nullptr) return std::nullopt;
  PictureLibrary gd{};
  decltype(&::gdSetErrorMethod) setErrorMethod = nullptr;
  const bool isWhole = Take(library, "gdImageCreateFromPngPtr", gd.createFromPng) &&
                       Take(library, "gdImageCreateFromJpegPtrEx", gd.createFromJpeg) &&
                       Take(library, "gdImageCreateFromGifPtr", gd.createFromGif) &&
                       Take(library, "gdImageCreateFromBmpPtr", gd.createFromBmp) &&
                       Take(library, "gdImageCreateFromTiffPtr", gd.createFromTiff) &&
                       Take(library, "gdImagePaletteToTrueColor", gd.paletteToTrueColor) &&
                       Take(library, "gdImageDestroy", gd.destroy) &&
                       Take(library, "gdSetErrorMethod", setErrorMethod);
  if (!isWhole) return std::nullopt;
  setErrorMethod([](int, const char*, va_list) {});  // the default one writes to standard error
  return gd;
}

}  // namespace

const PictureLibrary* PictureLibrary::Get() {
  static const std::optional<PictureLibrary> library = Load();
  return library ? &*library : nullptr;
}

}  // namespace quorvantis
