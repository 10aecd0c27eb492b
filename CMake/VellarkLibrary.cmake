# What all targets share: language level, warnings, sanitizers, the one spelling of includes, installation.

include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bin")
set(VELLARK_INCLUDE_ROOT "${PROJECT_BINARY_DIR}/include")

# A build that a sanitizer watches: optimised enough to be quick, honest enough for stack traces, which need no more than
# the lines. Assertions stay on.
set(CMAKE_CXX_FLAGS_CHECKED "-O1 -g1 -fno-omit-frame-pointer -D_GLIBCXX_ASSERTIONS")

# Settings of every target of this project, libraries and programs alike.
function(vellark_configure_target target)
    target_compile_features(${target} PUBLIC cxx_std_20)
    set_target_properties(${target} PROPERTIES CXX_EXTENSIONS OFF)
    target_compile_options(${target} PRIVATE -ffunction-sections -fdata-sections -fno-semantic-interposition)
    if(VELLARK_DEVELOPER)
        # Designated initialisers leave fields out on purpose: what is not named has its default.
        target_compile_options(${target} PRIVATE
            -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror -Wno-missing-field-initializers
            # GCC 12 sees overlapping copies in std::string where there are none (its bug 105651).
            $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
    endif()
    if(VELLARK_SANITIZERS)
        # With sanitizers' own code in between, GCC takes optionals for uninitialised that are not.
        target_compile_options(${target} PRIVATE -fsanitize=${VELLARK_SANITIZERS} -fno-sanitize-recover=all
            $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
        target_link_options(${target} PUBLIC -fsanitize=${VELLARK_SANITIZERS})
    endif()
    if(VELLARK_LIBFUZZER)
        target_compile_options(${target} PRIVATE -fsanitize=fuzzer-no-link)
    endif()
endfunction()

# Makes `#include <MODULE/Room/File.hpp>` find SOURCES/Room/File.hpp in the build tree, as it will once installed.
function(vellark_add_include_root module sources)
    file(MAKE_DIRECTORY "${VELLARK_INCLUDE_ROOT}")
    file(CREATE_LINK "${sources}" "${VELLARK_INCLUDE_ROOT}/${module}" SYMBOLIC)
endfunction()

# vellark_add_library(NAME [DIRECTORIES dir...] [ROOMS dir...] [PUBLIC target...] [PRIVATE target...])
#
# A static library VellarkNAME (alias Vellark::NAME) of all sources that stand directly in the directories, and at any
# depth in the rooms; both are relative to the caller's. A new file is found by the next build without a change here.
function(vellark_add_library name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "DIRECTORIES;ROOMS;PUBLIC;PRIVATE")
    set(sources)
    foreach(room IN LISTS arg_ROOMS)
        file(GLOB_RECURSE found CONFIGURE_DEPENDS
            "${CMAKE_CURRENT_SOURCE_DIR}/${room}/*.cpp" "${CMAKE_CURRENT_SOURCE_DIR}/${room}/*.hpp")
        list(APPEND sources ${found})
    endforeach()
    foreach(directory IN LISTS arg_DIRECTORIES)
        file(GLOB found CONFIGURE_DEPENDS
            "${CMAKE_CURRENT_SOURCE_DIR}/${directory}/*.cpp" "${CMAKE_CURRENT_SOURCE_DIR}/${directory}/*.hpp")
        list(APPEND sources ${found})
    endforeach()
    set(target Vellark${name})
    add_library(${target} STATIC ${sources})
    add_library(Vellark::${name} ALIAS ${target})
    set_target_properties(${target} PROPERTIES EXPORT_NAME ${name} POSITION_INDEPENDENT_CODE ON LINKER_LANGUAGE CXX)
    target_include_directories(${target} PUBLIC
        "$<BUILD_INTERFACE:${VELLARK_INCLUDE_ROOT}>" "$<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>")
    target_link_libraries(${target} PUBLIC ${arg_PUBLIC} PRIVATE ${arg_PRIVATE})
    vellark_configure_target(${target})
    install(TARGETS ${target} EXPORT VellarkTargets ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
endfunction()

# Installs the headers of a module under the spelling in which they are included everywhere.
function(vellark_install_headers module sources)
    install(DIRECTORY "${sources}/" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/${module}"
        FILES_MATCHING PATTERN "*.hpp")
endfunction()

# Stops the configuration when a target that must stay free of ICU would link it, directly or through others.
function(vellark_require_no_icu target)
    set(pending ${target})
    set(seen)
    while(pending)
        list(POP_FRONT pending current)
        if(current IN_LIST seen)
            continue()
        endif()
        list(APPEND seen ${current})
        if(current MATCHES "ICU|icu|FoundationUnicode")
            message(FATAL_ERROR "${target} must not link ICU, but reaches ${current}")
        endif()
        if(TARGET ${current})
            get_target_property(libraries ${current} LINK_LIBRARIES)
            get_target_property(interface ${current} INTERFACE_LINK_LIBRARIES)
            foreach(list IN ITEMS libraries interface)
                if(${list})
                    list(APPEND pending ${${list}})
                endif()
            endforeach()
        endif()
    endwhile()
endfunction()

# The installed package: find_package(Vellark) with its targets and modules, and a pkg-config file.
function(vellark_install_package)
    set(destination "${CMAKE_INSTALL_LIBDIR}/cmake/Vellark")
    install(EXPORT VellarkTargets NAMESPACE Vellark:: DESTINATION "${destination}")
    configure_package_config_file("${PROJECT_SOURCE_DIR}/CMake/VellarkConfig.cmake.in"
        "${PROJECT_BINARY_DIR}/VellarkConfig.cmake" INSTALL_DESTINATION "${destination}")
    write_basic_package_version_file("${PROJECT_BINARY_DIR}/VellarkConfigVersion.cmake"
        COMPATIBILITY SameMinorVersion)
    configure_file("${PROJECT_SOURCE_DIR}/CMake/vellark.pc.in" "${PROJECT_BINARY_DIR}/vellark.pc" @ONLY)
    install(FILES
        "${PROJECT_BINARY_DIR}/VellarkConfig.cmake"
        "${PROJECT_BINARY_DIR}/VellarkConfigVersion.cmake"
        "${PROJECT_SOURCE_DIR}/CMake/FindSodium.cmake"
        "${PROJECT_SOURCE_DIR}/CMake/FindCMarkGFM.cmake"
        DESTINATION "${destination}")
    install(FILES "${PROJECT_BINARY_DIR}/vellark.pc" DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
endfunction()
