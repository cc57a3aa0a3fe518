# SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
# SPDX-License-Identifier: MIT

# Warnings and sanitizers for all targets.

add_compile_options(-Wall -Wextra -pedantic -Woverloaded-virtual -Wundef -Wpointer-arith)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    add_compile_options(-Wsuggest-override)
endif()
if(DIAG_WERROR)
    add_compile_options(-Werror)
endif()

# Qt must not convert char texts silently: it would read UTF-8, but the device's texts are Latin-1.
add_compile_definitions(QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_FOREACH)

if(DIAG_SANITIZE)
    add_compile_options(-fsanitize=${DIAG_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${DIAG_SANITIZE})
endif()
