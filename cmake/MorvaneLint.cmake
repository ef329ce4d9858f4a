# SPDX-FileCopyrightText: 2026 Morvane-Projekt
# SPDX-License-Identifier: MIT

# Target lint: runs the checks of .clang-tidy on each C++ file that has changed since its last
# successful check.
#
# The checks run in clangd, which takes 2 s per file because it checks the declarations of that file
# only. clang-tidy 19 takes 20 s per file because it also checks the declarations of all included
# headers and then discards the results.
#
# Target analyze: runs clang-tidy on all files for the checks that clangd does not support. These
# checks analyse paths or data flow, or need all preprocessor directives.

# The version is fixed because each version reports different findings.
find_program(CLANGD clangd-19 REQUIRED)
find_program(CLANG_TIDY clang-tidy-19 REQUIRED)
find_program(RUN_CLANG_TIDY run-clang-tidy-19 REQUIRED)
mark_as_advanced(CLANGD CLANG_TIDY RUN_CLANG_TIDY)

set(configuration ${PROJECT_SOURCE_DIR}/.clang-tidy ${PROJECT_SOURCE_DIR}/.clangd
                  ${PROJECT_SOURCE_DIR}/tests/.clang-tidy)
set(stamps)
set(sources)

# morvane_all_targets(RESULT FOLDER) lists the targets of the folder and its subfolders.
function(morvane_all_targets result folder)
    get_directory_property(targets DIRECTORY ${folder} BUILDSYSTEM_TARGETS)
    get_directory_property(subfolders DIRECTORY ${folder} SUBDIRECTORIES)
    foreach(subfolder IN LISTS subfolders)
        morvane_all_targets(more ${subfolder})
        list(APPEND targets ${more})
    endforeach()
    set(${result} ${targets} PARENT_SCOPE)
endfunction()

morvane_all_targets(targets ${PROJECT_SOURCE_DIR})
foreach(target IN LISTS targets)
    get_target_property(type ${target} TYPE)
    get_target_property(folder ${target} SOURCE_DIR)
    get_target_property(files ${target} SOURCES)
    if(NOT type MATCHES "LIBRARY$|^EXECUTABLE$")
        continue()
    endif()
    foreach(file IN LISTS files)
        cmake_path(ABSOLUTE_PATH file BASE_DIRECTORY ${folder} NORMALIZE)
        cmake_path(IS_PREFIX PROJECT_BINARY_DIR ${file} is_generated)
        if(is_generated OR file IN_LIST sources OR NOT file MATCHES "\\.(cpp|h)$")
            continue()
        endif()
        list(APPEND sources ${file})
        cmake_path(RELATIVE_PATH file BASE_DIRECTORY ${PROJECT_SOURCE_DIR} OUTPUT_VARIABLE name)
        set(stamp ${PROJECT_BINARY_DIR}/lint/${name}.passed)
        cmake_path(GET stamp PARENT_PATH stamp_folder)
        file(MAKE_DIRECTORY ${stamp_folder})
        # The dependency on the object files repeats the check when an included header changes,
        # and generates the headers that the check reads.
        add_custom_command(
            OUTPUT ${stamp}
            COMMAND ${CLANGD} --check=${file} --check-locations=0 --check-completion=0
                    --compile-commands-dir=${PROJECT_BINARY_DIR} --enable-config --log=error
            COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
            DEPENDS ${file} ${configuration} $<TARGET_OBJECTS:${target}>
            COMMENT "Checking ${name}"
            VERBATIM)
        list(APPEND stamps ${stamp})
    endforeach()
endforeach()

add_custom_target(lint DEPENDS ${stamps})

# tests/bench is left out because the analyzer reports a leak in Google Benchmark's registration of
# benchmarks.
set(checks_unsupported_by_clangd clang-analyzer-* bugprone-unchecked-optional-access
                          bugprone-use-after-move modernize-macro-to-enum)
list(JOIN checks_unsupported_by_clangd "," checks_unsupported_by_clangd)
add_custom_target(
    analyze
    COMMAND ${RUN_CLANG_TIDY} -clang-tidy-binary ${CLANG_TIDY} -quiet
            -checks=-*,${checks_unsupported_by_clangd} -p ${PROJECT_BINARY_DIR}
            "^${PROJECT_SOURCE_DIR}/(src|tests/(e2e|qml|unit))/.*[.]cpp$"
    USES_TERMINAL
    VERBATIM)
# clang-tidy reads generated headers, which the target lint generates.
add_dependencies(analyze lint)
