# The Debian package: "scripts/package" makes and checks it.

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGE_NAME quorvantis)
set(CPACK_PACKAGE_CONTACT "The Quorvantis developers <developers@quorvantis.invalid>")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION education)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Loaded on demand, so the programs do not depend on it visibly.
set(CPACK_DEBIAN_PACKAGE_DEPENDS libgd3)
# Run as programs, so no library depends on them. Without them the program works, but shows and imports less.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS
    "libreoffice-writer-nogui | libreoffice-writer, libreoffice-calc-nogui | libreoffice-calc, \
libreoffice-impress-nogui | libreoffice-impress, libreoffice-math-nogui | libreoffice-math, poppler-utils, ffmpeg, \
fonts-noto-core, fonts-noto-cjk, qt6-translations-l10n")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "editor for exams")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
    "Quorvantis is a program for teachers who write exams. An exam has up to 500
questions: multiple choice, fill in the blank, essay and oral. Files can be
attached to the exam and to each question, and all of it is kept in one file.
Exams can be previewed, printed and exported, and questions can be imported
from documents.")
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ
                                                WORLD_EXECUTE)
include(CPack)
