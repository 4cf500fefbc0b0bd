# Two targets that carry the flags of the project. Every target of ours links kestrum_flags, those
# that use Qt link kestrum_qt_flags instead.

add_library(kestrum_flags INTERFACE)
target_include_directories(kestrum_flags INTERFACE "${PROJECT_SOURCE_DIR}/src" "${PROJECT_SOURCE_DIR}")
target_compile_options(kestrum_flags INTERFACE
  # A fused multiply-add rounds once where the formulas round twice.
  -ffp-contract=off
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast
  -Woverloaded-virtual -Wnon-virtual-dtor -Wimplicit-fallthrough -Wformat=2 -Wundef
  -Wdouble-promotion
  "$<$<CXX_COMPILER_ID:GNU>:-Wduplicated-cond;-Wduplicated-branches;-Wlogical-op>")
# Checks the indices of containers of the standard library while we develop and test.
target_compile_definitions(kestrum_flags INTERFACE $<$<CONFIG:Debug>:_GLIBCXX_ASSERTIONS>)

# GCC 12 takes "text" + std::string for an overlapping copy as soon as it optimises.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  target_compile_options(kestrum_flags INTERFACE -Wno-restrict)
endif()

# What ships reads files of strangers: guards that Debian asks of every program.
target_compile_options(kestrum_flags INTERFACE
  "$<$<CONFIG:Release>:-fstack-protector-strong;-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>")
if(WIN32)
  # There the system itself touches each page of a stack as it grows; its linker's guards are others.
  target_link_options(kestrum_flags INTERFACE
    "$<$<CONFIG:Release>:-fstack-protector-strong;LINKER:--dynamicbase;LINKER:--nxcompat;LINKER:--high-entropy-va>")
else()
  target_compile_options(kestrum_flags INTERFACE "$<$<CONFIG:Release>:-fstack-clash-protection>")
  target_link_options(kestrum_flags INTERFACE
    "$<$<CONFIG:Release>:LINKER:-z,relro;LINKER:-z,now;LINKER:--as-needed>")
endif()

if(KESTRUM_SANITIZE)
  set(sanitizers -fsanitize=address,undefined,float-cast-overflow -fno-sanitize-recover=all
    -fno-omit-frame-pointer)
  target_compile_options(kestrum_flags INTERFACE ${sanitizers})
  target_link_options(kestrum_flags INTERFACE ${sanitizers})
endif()

if(KESTRUM_FUZZ)
  if(NOT CMAKE_CXX_COMPILER_ID MATCHES "Clang")
    message(FATAL_ERROR "The fuzz targets need clang++: use the preset fuzz.")
  endif()
  target_compile_options(kestrum_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()

if(KESTRUM_COVERAGE)
  target_compile_options(kestrum_flags INTERFACE --coverage)
  target_link_options(kestrum_flags INTERFACE --coverage)
endif()

add_library(kestrum_qt_flags INTERFACE)
target_link_libraries(kestrum_qt_flags INTERFACE kestrum_flags)
target_compile_definitions(kestrum_qt_flags INTERFACE
  QT_NO_KEYWORDS
  QT_NO_CAST_FROM_ASCII
  QT_NO_CAST_TO_ASCII
  QT_NO_CAST_FROM_BYTEARRAY
  QT_NO_URL_CAST_FROM_STRING
  QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
  QT_DISABLE_DEPRECATED_BEFORE=0x060400)

# Reading the headers of the standard library and of Qt takes most of the time of a build: each target
# that is named here reads them once. The headers still include what they use, which the preset tidy
# proves: it does without.
function(kestrum_precompile target)
  if(KESTRUM_PRECOMPILE)
    target_precompile_headers(${target} PRIVATE ${ARGN})
  endif()
endfunction()

set(kestrum_standard_headers <algorithm> <array> <cmath> <functional> <map> <memory> <optional> <span>
  <string> <string_view> <vector>)
set(kestrum_widget_headers ${kestrum_standard_headers} <QApplication> <QEvent> <QFont> <QPainter> <QString>
  <QWidget>)
