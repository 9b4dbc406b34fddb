# Language libraries: dynamic libraries with the texts and pictures of one language, built from a text file. And the
# built-in texts, made from the same file.

set(QUORVANTIS_LANGUAGE_FOLDER "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/language/Quorvantis")

# Stores in OUT the name of a source file that embeds every bitmap of cmake/Bitmaps.cmake.
function(quorvantis_bitmap_table out)
  get_property(names GLOBAL PROPERTY QUORVANTIS_BITMAPS)
  set(embedded "")
  set(entries "")
  set(files "")
  set(index 0)
  foreach(name IN LISTS names)
    foreach(scale 1 2)
      set(file "${PROJECT_BINARY_DIR}/bitmaps/${name}@${scale}x.png")
      list(APPEND files "${file}")
      string(APPEND embedded "QUORVANTIS_EMBED_FILE(bitmap_${index}, \"${file}\");\n")
      string(APPEND entries "    {\"${name}\", ${scale}, bitmap_${index}, bitmap_${index}_end},\n")
      math(EXPR index "${index} + 1")
    endforeach()
  endforeach()
  set(table "${CMAKE_CURRENT_BINARY_DIR}/Bitmaps.cpp")
  file(CONFIGURE OUTPUT "${table}" @ONLY CONTENT [[
// Made by the build.
#include "EmbeddedFile.h"
#include "LanguageTables.h"

@embedded@
namespace quorvantis::language {

static const BitmapEntry kEntries[] = {
@entries@};

const std::span<const BitmapEntry> kBitmaps(kEntries);

}  // namespace quorvantis::language
]])
  set_source_files_properties("${table}" PROPERTIES OBJECT_DEPENDS "${files}")
  set(${out} "${table}" PARENT_SCOPE)
endfunction()

# Builds <name>.dll from the text file <source>. The library exports the functions of quorvantis/LanguageLibrary.h.
#   quorvantis_language(<name> <source>)
function(quorvantis_language name source)
  set(tables "${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp")
  add_custom_command(
    OUTPUT "${tables}"
    COMMAND language-compiler "${CMAKE_CURRENT_SOURCE_DIR}/${source}" "${tables}"
    DEPENDS language-compiler "${source}"
    COMMENT "Compiling language ${name}"
    VERBATIM)
  add_library(${name} MODULE "${tables}")
  target_link_libraries(${name} PRIVATE language_library)
  set_target_properties(${name} PROPERTIES
    PREFIX "" SUFFIX ".dll" CXX_VISIBILITY_PRESET hidden LIBRARY_OUTPUT_DIRECTORY "${QUORVANTIS_LANGUAGE_FOLDER}")
  add_dependencies(languages ${name})
  set_property(GLOBAL APPEND PROPERTY QUORVANTIS_LANGUAGES ${name})
endfunction()

# Adds the built-in texts to TARGET: those of english.ini, with the exceptions of built-in.ini.
function(quorvantis_built_in_texts target)
  set(languages "${PROJECT_SOURCE_DIR}/languages")
  set(table "${CMAKE_CURRENT_BINARY_DIR}/BuiltInTexts.cpp")
  add_custom_command(
    OUTPUT "${table}"
    COMMAND language-compiler "${languages}/english.ini" "${languages}/built-in.ini" "${table}"
    DEPENDS language-compiler "${languages}/english.ini" "${languages}/built-in.ini"
    COMMENT "Compiling the built-in texts"
    VERBATIM)
  target_sources(${target} PRIVATE "${table}")
endfunction()
