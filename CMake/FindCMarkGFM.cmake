# Finds cmark-gfm with its core extensions and defines CMarkGFM::CMarkGFM. The archives are preferred.

find_path(CMarkGFM_INCLUDE_DIR cmark-gfm-core-extensions.h)
find_library(CMarkGFM_LIBRARY NAMES libcmark-gfm.a cmark-gfm)
find_library(CMarkGFM_EXTENSIONS_LIBRARY NAMES libcmark-gfm-extensions.a cmark-gfm-extensions)
mark_as_advanced(CMarkGFM_INCLUDE_DIR CMarkGFM_LIBRARY CMarkGFM_EXTENSIONS_LIBRARY)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(CMarkGFM
    REQUIRED_VARS CMarkGFM_LIBRARY CMarkGFM_EXTENSIONS_LIBRARY CMarkGFM_INCLUDE_DIR)

if(CMarkGFM_FOUND AND NOT TARGET CMarkGFM::CMarkGFM)
    add_library(CMarkGFM::Core UNKNOWN IMPORTED)
    set_target_properties(CMarkGFM::Core PROPERTIES
        IMPORTED_LOCATION "${CMarkGFM_LIBRARY}"
        INTERFACE_INCLUDE_DIRECTORIES "${CMarkGFM_INCLUDE_DIR}")
    add_library(CMarkGFM::CMarkGFM UNKNOWN IMPORTED)
    set_target_properties(CMarkGFM::CMarkGFM PROPERTIES
        IMPORTED_LOCATION "${CMarkGFM_EXTENSIONS_LIBRARY}"
        INTERFACE_LINK_LIBRARIES CMarkGFM::Core)
endif()
