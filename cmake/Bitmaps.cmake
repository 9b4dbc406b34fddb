# The bitmaps of the buttons, rendered from the drawings in assets/.
#
# Every bitmap has a resource name, also used in language libraries, and is built as <name>@1x.png and
# <name>@2x.png in ${PROJECT_BINARY_DIR}/bitmaps: with one and two bitmap pixels to a layout pixel. The global property
# QUORVANTIS_BITMAPS lists the names; the target `bitmaps` renders them all. The spelling of the names is fixed.

find_program(RSVG_CONVERT rsvg-convert)
if(NOT RSVG_CONVERT)
  message(FATAL_ERROR "rsvg-convert renders the pictures of the buttons; scripts/install-dependencies installs it.")
endif()

set(bitmap_sources "${PROJECT_SOURCE_DIR}/assets")
set(bitmap_folder "${PROJECT_BINARY_DIR}/bitmaps")
file(MAKE_DIRECTORY "${bitmap_folder}")
set(bitmap_files)

# Renders the SVG file DRAWING, which may be made by the build, as the bitmap NAME of WIDTH x HEIGHT.
function(render_bitmap name drawing width height)
  math(EXPR double_width "2 * ${width}")
  math(EXPR double_height "2 * ${height}")
  set(one "${bitmap_folder}/${name}@1x.png")
  set(two "${bitmap_folder}/${name}@2x.png")
  add_custom_command(
    OUTPUT "${one}" "${two}"
    COMMAND "${RSVG_CONVERT}" --width ${width} --height ${height} --output "${one}" "${drawing}"
    COMMAND "${RSVG_CONVERT}" --width ${double_width} --height ${double_height} --output "${two}" "${drawing}"
    DEPENDS "${drawing}"
    COMMENT "Rendering bitmap ${name}"
    VERBATIM)
  set_property(GLOBAL APPEND PROPERTY QUORVANTIS_BITMAPS "${name}")
  set(bitmap_files ${bitmap_files} "${one}" "${two}" PARENT_SCOPE)
endfunction()

# Puts the glyph of a small button onto the plate of a state. The plate lies in the middle of the bitmap, which has
# one size for all small buttons, and is as large as the button: a button shows the middle of its bitmap.
function(compose_small_button drawing glyph plate plate_width plate_height)
  set(glyph_file "${bitmap_sources}/glyphs/${glyph}.svg")
  set(plate_file "${bitmap_sources}/plates/${plate}.svg.in")
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${glyph_file}")
  file(READ "${glyph_file}" glyph)
  string(REGEX REPLACE "^.*</title>(.*)</svg>.*$" "\\1" glyph "${glyph}")
  math(EXPR left "(73 - ${plate_width}) / 2")
  math(EXPR top "(28 - ${plate_height}) / 2")
  math(EXPR width "${plate_width} - 1")
  math(EXPR height "${plate_height} - 1")
  math(EXPR inner_left "${left} + 1")
  math(EXPR inner_top "${top} + 1")
  math(EXPR inner_width "${width} - 2")
  math(EXPR inner_height "${height} - 2")
  configure_file("${plate_file}" "${drawing}" @ONLY)
endfunction()

# A small button: the glyph in assets/glyphs, and a bitmap name for each state that it has.
#   small_button(<glyph> <plate width> <plate height> UP <name> PRESSED <name> DISABLED <name> [FOCUSED <name>])
function(small_button glyph plate_width plate_height)
  cmake_parse_arguments(NAME "" "UP;PRESSED;FOCUSED;DISABLED" "" ${ARGN})
  foreach(state UP PRESSED FOCUSED DISABLED)
    if(NAME_${state})
      string(TOLOWER "${state}" plate)
      set(drawing "${bitmap_folder}/drawings/${NAME_${state}}.svg")
      compose_small_button("${drawing}" "${glyph}" "${plate}" ${plate_width} ${plate_height})
      render_bitmap("${NAME_${state}}" "${drawing}" 73 28)
    endif()
  endforeach()
  set(bitmap_files ${bitmap_files} PARENT_SCOPE)
endfunction()

render_bitmap(128 "${bitmap_sources}/quorvantis.svg" 64 64)

render_bitmap(206 "${bitmap_sources}/toolbar/score-settings.svg" 24 24)
render_bitmap(207 "${bitmap_sources}/toolbar/new.svg" 24 24)
render_bitmap(208 "${bitmap_sources}/toolbar/open.svg" 24 24)
render_bitmap(209 "${bitmap_sources}/toolbar/preview.svg" 24 24)
render_bitmap(210 "${bitmap_sources}/toolbar/print.svg" 24 24)
render_bitmap(211 "${bitmap_sources}/toolbar/save.svg" 24 24)
render_bitmap(212 "${bitmap_sources}/toolbar/save-as.svg" 24 24)
render_bitmap(226 "${bitmap_sources}/toolbar/attach.svg" 24 24)
render_bitmap(227 "${bitmap_sources}/toolbar/import.svg" 24 24)

foreach(button next:NextQuestion forward-10:NextQuestion10 previous:PreviousQuestion back-10:PreviousQuestion10)
  string(REGEX MATCH "^(.*):(.*)$" matched "${button}")
  set(stem "${CMAKE_MATCH_2}")
  small_button(${CMAKE_MATCH_1} 73 28 UP ${stem}U PRESSED ${stem}d FOCUSED ${stem}f DISABLED ${stem}x)
endforeach()
small_button(delete 73 28 UP DeleteU PRESSED Deleted FOCUSED Deletef DISABLED Deletex)
small_button(insert 73 28 UP insertU PRESSED insertd FOCUSED insertf DISABLED insertx)
small_button(attach-question 73 28 UP attachqu PRESSED attachqd FOCUSED attachqf DISABLED attachqx)
small_button(list-separator 30 20 UP ListSeparatroU PRESSED ListSeparatroD DISABLED ListSeparatroX)

add_custom_target(bitmaps ALL DEPENDS ${bitmap_files})
