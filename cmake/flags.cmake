# SPDX-License-Identifier: MIT
# What every target of ours is compiled with: warnings, which the presets make errors, and Qt's
# safety defines.
add_library(tarnwick_flags INTERFACE)

target_compile_options(tarnwick_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast
  -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align -Wimplicit-fallthrough)

target_compile_definitions(tarnwick_flags INTERFACE
  QT_NO_KEYWORDS
  QT_NO_CAST_FROM_ASCII
  QT_NO_CAST_TO_ASCII
  QT_NO_URL_CAST_FROM_STRING
  QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
  QT_NO_FOREACH
  QT_NO_JAVA_STYLE_ITERATORS
  QT_DISABLE_DEPRECATED_BEFORE=0x060400)
