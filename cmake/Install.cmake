# What "cmake --install" installs and where, and the Debian package.
#
# Programs look for their resources beside themselves, so the whole application is in one folder, to which links in
# the folder for programs lead.

include(GNUInstallDirs)
set(home "${CMAKE_INSTALL_LIBDIR}/quorvantis")
set(documentation "${CMAKE_INSTALL_DATADIR}/doc/quorvantis")
find_program(GZIP gzip REQUIRED)
file(MAKE_DIRECTORY "${PROJECT_BINARY_DIR}/packaging" "${PROJECT_BINARY_DIR}/links")

# Installs a file of packaging/ compressed, as Debian wants its manual pages and changelogs.
function(quorvantis_install_compressed file destination)
  set(compressed "${PROJECT_BINARY_DIR}/packaging/${file}.gz")
  execute_process(COMMAND "${GZIP}" -9nc "${PROJECT_SOURCE_DIR}/packaging/${file}"
                  OUTPUT_FILE "${compressed}" COMMAND_ERROR_IS_FATAL ANY)
  install(FILES "${compressed}" DESTINATION "${destination}")
endfunction()

set(programs quorvantis-cli)
if(TARGET quorvantis)
  list(APPEND programs quorvantis)
endif()

install(TARGETS ${programs} RUNTIME DESTINATION "${home}")
if(TARGET quorvantis-pdf)  # started by the others, so nobody needs to find it
  install(TARGETS quorvantis-pdf RUNTIME DESTINATION "${home}")
endif()
get_property(languages GLOBAL PROPERTY QUORVANTIS_LANGUAGES)
install(TARGETS ${languages} LIBRARY DESTINATION "${home}/language/Quorvantis")
install(FILES samples/papers/ImportExam.ini DESTINATION "${home}")
install(DIRECTORY "${PROJECT_BINARY_DIR}/bin/samples" DESTINATION "${home}")
install(DIRECTORY "${PROJECT_BINARY_DIR}/bin/guide" DESTINATION "${home}")
install(DIRECTORY "${PROJECT_BINARY_DIR}/bin/flash-player" DESTINATION "${home}" OPTIONAL)
foreach(program IN LISTS programs)
  file(RELATIVE_PATH link "/${CMAKE_INSTALL_BINDIR}" "/${home}/${program}")
  file(CREATE_LINK "${link}" "${PROJECT_BINARY_DIR}/links/${program}" SYMBOLIC)
  install(FILES "${PROJECT_BINARY_DIR}/links/${program}" DESTINATION "${CMAKE_INSTALL_BINDIR}")
  quorvantis_install_compressed(${program}.1 "${CMAKE_INSTALL_MANDIR}/man1")
endforeach()
install(FILES scripts/quorvantis-cli.bash RENAME quorvantis-cli
        DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions")
install(FILES README.md docs/IMPORT-RULES.md docs/LEARNING.md docs/FIND.md docs/CHECKS.md docs/PRINTING.md docs/VERSIONS.md
              docs/EXCHANGE.md docs/FILE-FORMAT.md docs/LANGUAGES.md docs/BANK.md docs/BANK-QUESTIONS.md
              docs/BANK-SEARCH.md DESTINATION "${documentation}")
quorvantis_install_compressed(changelog "${documentation}")
install(FILES LICENSE RENAME copyright DESTINATION "${documentation}")
if(TARGET quorvantis)
  install(FILES packaging/quorvantis.desktop DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")
  install(FILES packaging/quorvantis.metainfo.xml DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo")
  install(FILES packaging/quorvantis.xml DESTINATION "${CMAKE_INSTALL_DATADIR}/mime/packages")
  install(FILES assets/quorvantis.svg DESTINATION "${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps")
endif()
