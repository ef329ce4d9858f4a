# SPDX-FileCopyrightText: 2026 Morvane-Projekt
# SPDX-License-Identifier: MIT

# What every target of the program is built with.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_AUTOMOC ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

# One folder for all QML modules, so that the linter finds each from every other.
set(QT_QML_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/qml)

add_compile_definitions(QT_DISABLE_DEPRECATED_BEFORE=0x060400 QT_NO_CAST_FROM_ASCII
                        QT_NO_CAST_TO_ASCII QT_NO_FOREACH QT_NO_KEYWORDS)

# Where the sources lie on the machine that builds is nobody's business, and two machines shall
# build the same program.
add_compile_options(-ffile-prefix-map=${CMAKE_SOURCE_DIR}/=)

# Faults in memory shall end the program before anybody can make use of them.
include(CheckCXXCompilerFlag)
include(CheckPIESupported)
check_pie_supported(LANGUAGES CXX)
foreach(protection -fcf-protection=full -mbranch-protection=standard -fstack-clash-protection)
    string(MAKE_C_IDENTIFIER "MORVANE_HAS${protection}" has_protection)
    check_cxx_compiler_flag(${protection} ${has_protection})
    if(${has_protection})
        add_compile_options(${protection})
    endif()
endforeach()
add_compile_options(-fstack-protector-strong)
add_compile_definitions(_GLIBCXX_ASSERTIONS)
if(CMAKE_SYSTEM_NAME STREQUAL Linux)
    add_link_options(-Wl,-z,relro,-z,now,-z,noexecstack)
    # The C library's start files, of which Debian's do not say that they bear a shadow stack, do:
    # they only call and return. They lack the marks of indirect branches' targets.
    if(CMAKE_SYSTEM_PROCESSOR STREQUAL x86_64)
        add_link_options(-Wl,-z,shstk)
    endif()
endif()
# It needs an optimiser, and stands in the way of the sanitizers.
if(CMAKE_BUILD_TYPE MATCHES "^(Release|RelWithDebInfo|MinSizeRel)$")
    add_compile_options(-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=3)
endif()

# Linked privately by every target that holds nothing but code of our own.
add_library(MorvaneWarnings INTERFACE)
target_compile_options(
    MorvaneWarnings
    INTERFACE -Wall
              -Wextra
              -Wpedantic
              -Wcast-align
              -Wcast-qual
              -Wconversion
              -Wdouble-promotion
              -Wextra-semi
              -Wformat=2
              -Wimplicit-fallthrough
              -Wmissing-declarations
              -Wnon-virtual-dtor
              -Wnull-dereference
              -Wold-style-cast
              -Woverloaded-virtual
              -Wredundant-decls
              -Wshadow
              -Wsign-conversion
              -Wundef
              -Wunused
              -Wzero-as-null-pointer-constant)

# The same for targets with a QML module: what Qt generates for those would inherit the target's
# options and does not meet them.
function(morvane_strict_sources)
    set_source_files_properties(
        ${ARGV} PROPERTIES COMPILE_OPTIONS
                           "$<TARGET_PROPERTY:MorvaneWarnings,INTERFACE_COMPILE_OPTIONS>")
endfunction()

set(MORVANE_SANITIZERS "" CACHE STRING "List for ECM_ENABLE_SANITIZERS, such as address;undefined")
if(MORVANE_SANITIZERS)
    find_package(ECM 5.103 REQUIRED NO_MODULE)
    set(ECM_ENABLE_SANITIZERS ${MORVANE_SANITIZERS})
    include(${ECM_MODULE_DIR}/ECMEnableSanitizers.cmake)
    # UndefinedBehaviorSanitizer continues after an error by default.
    add_compile_options(-fno-sanitize-recover=all)
endif()

# Translating bindings to C++ as well would double the program's size, and neither start it faster
# nor draw faster. What Qt generates for each QML file takes a second to compile, nearly all of it
# for Qt's headers; as one unit, it takes a few seconds for all files. Sources with options of their
# own, such as ours, stay out of that unit.
function(morvane_compile_qml_to_bytecode target)
    set_target_properties(
        ${target} PROPERTIES QT_QMLCACHEGEN_ARGUMENTS --only-bytecode
                             UNITY_BUILD ON
                             UNITY_BUILD_BATCH_SIZE 0)
endfunction()

# Qt's QML plugins are shared libraries, and those of our own modules are linked by name. Qt's scan
# for plugins to link would find none and warn of each (CMake 3.31, Qt 6.8). The bundle for macOS
# needs its result, as the list of plugins to take along.
function(morvane_load_qml_plugins_at_run_time target)
    if(NOT APPLE)
        set_target_properties(${target} PROPERTIES QT_QML_MODULE_NO_IMPORT_SCAN TRUE)
    endif()
endfunction()
