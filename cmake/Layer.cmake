# A layer is one folder of src/: a static library that sees the headers of the layers it names and of those that they
# name, and no others.
#
#   quorvantis_layer(<folder> [DEPENDS <folder>...] [LINK <library>...])
#
# Code includes a header as "folder/Header.h". Each layer gets an include root of its own that holds nothing but
# links to its own headers, so an include against the direction of the architecture does not compile.

# Recreates the include root of FOLDER and stores its path in OUT.
function(quorvantis_include_root folder out)
  string(REPLACE "/" "_" name "${folder}")
  set(root "${PROJECT_BINARY_DIR}/include/${name}")
  file(REMOVE_RECURSE "${root}")
  file(MAKE_DIRECTORY "${root}/${folder}")
  file(GLOB headers CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.h")
  foreach(header IN LISTS headers)
    get_filename_component(file_name "${header}" NAME)
    file(CREATE_LINK "${header}" "${root}/${folder}/${file_name}" SYMBOLIC)
  endforeach()
  set(${out} "${root}" PARENT_SCOPE)
endfunction()

function(quorvantis_layer folder)
  cmake_parse_arguments(LAYER "" "" "DEPENDS;LINK" ${ARGN})
  string(REPLACE "/" "_" target "${folder}")
  quorvantis_include_root("${folder}" root)
  file(GLOB sources CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.cpp")
  list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
  set(scope PUBLIC)
  if(sources)
    add_library(${target} STATIC ${sources})
    target_link_libraries(${target} PRIVATE quorvantis_warnings)
  else()
    set(scope INTERFACE)
    add_library(${target} INTERFACE)
  endif()
  target_include_directories(${target} ${scope} "${root}")
  foreach(dependency IN LISTS LAYER_DEPENDS)
    string(REPLACE "/" "_" dependency_target "${dependency}")
    if(NOT TARGET ${dependency_target})  # so arrows never lead in a circle
      message(FATAL_ERROR "${folder} names ${dependency}, which is not declared before it")
    endif()
    target_link_libraries(${target} ${scope} ${dependency_target})
  endforeach()
  target_link_libraries(${target} ${scope} ${LAYER_LINK})
endfunction()
