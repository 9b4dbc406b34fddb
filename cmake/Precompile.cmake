# Precompiled headers, because most of a build's time would go into reading the same headers for every file anew.
#
# The sources do not know of them: each includes what it uses. The preset "plain" builds without them, which
# scripts/check does, so that a missing include does not go unnoticed.

set(QUORVANTIS_STANDARD_HEADERS
    <algorithm> <array> <charconv> <chrono> <cstddef> <cstdint> <cstdlib> <cstring> <filesystem> <fstream> <functional>
    <iterator> <limits> <map> <memory> <optional> <set> <span> <sstream> <string> <string_view> <system_error> <tuple>
    <unordered_map> <utility> <vector>)
set(QUORVANTIS_WIDGETS_HEADERS
    <QAbstractButton> <QApplication> <QByteArray> <QDialog> <QElapsedTimer> <QFile> <QHash> <QKeyEvent> <QLabel> <QList>
    <QLineEdit> <QMenu> <QMessageBox> <QObject> <QPainter> <QPlainTextEdit> <QPointer> <QProcess> <QPushButton> <QSet>
    <QString> <QStringList> <QStyle> <QTimer> <QUrl> <QVBoxLayout> <QWidget>)
set(QUORVANTIS_BROWSER_HEADERS ${QUORVANTIS_WIDGETS_HEADERS})  # the browser's libraries bring definitions along
set(QUORVANTIS_JSON_HEADERS <nlohmann/json.hpp>)
set(QUORVANTIS_TEST_HEADERS <gtest/gtest.h>)

# Gives TARGET the headers of the sets named: Standard, Widgets, Browser, Json, Test. The first target with these sets and this KIND
# compiles them, the others share its result, so all targets of a kind must have the same compiler flags.
#   quorvantis_precompile(<target> KIND <kind> SETS <set>...)
function(quorvantis_precompile target)
  cmake_parse_arguments(PRECOMPILE "" "KIND" "SETS" ${ARGN})
  list(JOIN PRECOMPILE_SETS "_" key)
  string(PREPEND key "QUORVANTIS_PRECOMPILED_${PRECOMPILE_KIND}_")
  get_property(owner GLOBAL PROPERTY "${key}")
  if(owner)
    target_precompile_headers(${target} REUSE_FROM ${owner})
    return()
  endif()
  foreach(name IN LISTS PRECOMPILE_SETS)
    string(TOUPPER "${name}" name)
    target_precompile_headers(${target} PRIVATE ${QUORVANTIS_${name}_HEADERS})
  endforeach()
  set_property(GLOBAL PROPERTY "${key}" ${target})
endfunction()
