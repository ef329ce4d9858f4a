# SPDX-FileCopyrightText: 2026 Morvane-Projekt
# SPDX-License-Identifier: MIT

# libseccomp, as the target Seccomp::Seccomp.

find_path(Seccomp_INCLUDE_DIR seccomp.h)
find_library(Seccomp_LIBRARY seccomp)
mark_as_advanced(Seccomp_INCLUDE_DIR Seccomp_LIBRARY)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Seccomp REQUIRED_VARS Seccomp_LIBRARY Seccomp_INCLUDE_DIR)

if(Seccomp_FOUND AND NOT TARGET Seccomp::Seccomp)
    add_library(Seccomp::Seccomp UNKNOWN IMPORTED)
    set_target_properties(
        Seccomp::Seccomp PROPERTIES IMPORTED_LOCATION "${Seccomp_LIBRARY}"
                                    INTERFACE_INCLUDE_DIRECTORIES "${Seccomp_INCLUDE_DIR}")
endif()
