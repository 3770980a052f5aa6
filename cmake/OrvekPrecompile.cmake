# SPDX-License-Identifier: Apache-2.0
# The headers of Qt and of the standard library are parsed once for all targets: in one precompiled
# header for those that know Qt Core alone, in a second one where there are widgets. A source still
# includes what it uses, and builds with ORVEK_PCH=OFF as well.

option(ORVEK_PCH "Parse Qt's and the standard library's headers once for all targets" ON)

set(ORVEK_CORE_HEADERS
  <algorithm> <array> <atomic> <chrono> <cstring> <functional> <memory> <mutex> <optional> <span>
  <string> <string_view> <thread> <utility> <vector>
  <QByteArray> <QDir> <QElapsedTimer> <QFile> <QFileInfo> <QHash> <QJsonArray> <QJsonDocument>
  <QJsonObject> <QList> <QMap> <QObject> <QProcess> <QRegularExpression> <QSet> <QString> <QStringList>
  <QTimer> <QUrl> <QVariant>)
set(ORVEK_WIDGETS_HEADERS
  <QApplication> <QBoxLayout> <QCheckBox> <QComboBox> <QLabel> <QLineEdit> <QPainter> <QPushButton>
  <QSlider> <QWidget>)

# orvek_find_linked(RESULT NAME...): every library that these lead to, themselves included.
function(orvek_find_linked result)
  set(found "")
  set(waiting ${ARGN})
  while(waiting)
    list(POP_FRONT waiting name)
    string(REGEX REPLACE "^\\$<LINK_ONLY:(.*)>$" "\\1" name "${name}")
    if(name IN_LIST found)
      continue()
    endif()
    list(APPEND found "${name}")
    if(TARGET ${name})
      get_target_property(linked ${name} INTERFACE_LINK_LIBRARIES)
      if(linked)
        list(APPEND waiting ${linked})
      endif()
    endif()
  endwhile()
  set(${result} "${found}" PARENT_SCOPE)
endfunction()

# orvek_precompile_folder(FOLDER): has every target in and below it use the precompiled header that fits
# what it links.
function(orvek_precompile_folder folder)
  get_property(targets DIRECTORY "${folder}" PROPERTY BUILDSYSTEM_TARGETS)
  foreach(target ${targets})
    get_target_property(type ${target} TYPE)
    get_target_property(direct ${target} LINK_LIBRARIES)
    if(NOT type MATCHES "^(STATIC_LIBRARY|SHARED_LIBRARY|MODULE_LIBRARY|EXECUTABLE)$" OR NOT direct)
      continue()
    endif()
    # clang takes a precompiled header only where such flags are the same.
    get_target_property(visibility ${target} CXX_VISIBILITY_PRESET)
    if(visibility AND CMAKE_CXX_COMPILER_ID MATCHES "Clang")
      continue()
    endif()
    orvek_find_linked(linked ${direct})
    if(Qt6::Widgets IN_LIST linked)
      target_precompile_headers(${target} REUSE_FROM orvek-headers-widgets)
    elseif(Qt6::Core IN_LIST linked)
      target_precompile_headers(${target} REUSE_FROM orvek-headers-core)
    endif()
  endforeach()
  get_property(children DIRECTORY "${folder}" PROPERTY SUBDIRECTORIES)
  foreach(child ${children})
    orvek_precompile_folder("${child}")
  endforeach()
endfunction()

# orvek_precompile_all(): call it when all targets are there.
function(orvek_precompile_all)
  if(NOT ORVEK_PCH)
    return()
  endif()
  set(source "${CMAKE_BINARY_DIR}/precompiled.cpp")
  file(CONFIGURE OUTPUT "${source}" CONTENT "// The headers are the point.\n")
  add_library(orvek-headers-core OBJECT "${source}")
  target_link_libraries(orvek-headers-core PRIVATE Qt6::Core)
  target_precompile_headers(orvek-headers-core PRIVATE ${ORVEK_CORE_HEADERS})
  add_library(orvek-headers-widgets OBJECT "${source}")
  target_link_libraries(orvek-headers-widgets PRIVATE Qt6::Widgets)
  target_precompile_headers(orvek-headers-widgets PRIVATE ${ORVEK_CORE_HEADERS} ${ORVEK_WIDGETS_HEADERS})
  orvek_precompile_folder("${CMAKE_SOURCE_DIR}")
endfunction()
