# SPDX-FileCopyrightText: 2026 Morvane-Projekt
# SPDX-License-Identifier: MIT

# The target lint runs the checks of .clang-tidy on each C++ file of the project that has changed
# since the checks last passed on it.
#
# clangd applies them to the declarations of the file itself, in 2 s a file; clang-tidy 19 applies
# them to those of all included headers as well before it discards the results, in 20 s a file.
# The target analyze runs clang-tidy itself on all files for the checks that clangd leaves out: those
# that follow paths and the flow of data, and one that needs every preprocessor directive.

# One version of each tool, because each version finds something else.
find_program(CLANGD clangd-19 REQUIRED)
find_program(CLANG_TIDY clang-tidy-19 REQUIRED)
find_program(RUN_CLANG_TIDY run-clang-tidy-19 REQUIRED)
mark_as_advanced(CLANGD CLANG_TIDY RUN_CLANG_TIDY)

set(configuration ${PROJECT_SOURCE_DIR}/.clang-tidy ${PROJECT_SOURCE_DIR}/.clangd
                  ${PROJECT_SOURCE_DIR}/tests/.clang-tidy)
set(stamps)
set(sources)

# morvane_all_targets(RESULT FOLDER)
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
        # The object files change with every header that is included, and are built from generated
        # headers that the checks need as well.
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

# The analyzer takes the way in which Google Benchmark registers benchmarks for a leak, so tests/bench
# is left out.
set(checks_without_clangd clang-analyzer-* bugprone-unchecked-optional-access bugprone-use-after-move
             modernize-macro-to-enum)
list(JOIN checks_without_clangd "," checks_without_clangd)
add_custom_target(
    analyze
    COMMAND ${RUN_CLANG_TIDY} -clang-tidy-binary ${CLANG_TIDY} -quiet -checks=-*,${checks_without_clangd}
            -p ${PROJECT_BINARY_DIR} "^${PROJECT_SOURCE_DIR}/(src|tests/(e2e|qml|unit))/.*[.]cpp$"
    USES_TERMINAL
    VERBATIM)
# The checks read generated headers.
add_dependencies(analyze lint)
