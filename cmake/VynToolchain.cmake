# Compiler settings for everything in this tree: language, warnings, sanitizers, ccache.

set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)  # a host may link the archives into a shared library
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)

if(PROJECT_IS_TOP_LEVEL AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    find_program(VYN_CCACHE ccache)
    mark_as_advanced(VYN_CCACHE)
    if(VYN_CCACHE)
        set(CMAKE_CXX_COMPILER_LAUNCHER ${VYN_CCACHE})
    endif()
endif()

if(VYN_SANITIZE)
    add_compile_options(-fsanitize=${VYN_SANITIZE} -fno-sanitize-recover=all
                        -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${VYN_SANITIZE})
endif()

if(VYN_IPO)
    include(CheckIPOSupported)
    check_ipo_supported(LANGUAGES CXX)
    set(CMAKE_INTERPROCEDURAL_OPTIMIZATION ON)
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        # Installed archives must link with any compiler, not only with the one that wrote them.
        add_compile_options(-ffat-lto-objects)
    endif()
endif()

set(vynWarnings -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion)
if(VYN_WERROR)
    list(APPEND vynWarnings -Werror)
endif()

# vyn_configure_test_target(<target>): a program that checks or measures others: its own speed does
# not count in a build for debugging, and it is most of what such a build compiles.
function(vyn_configure_test_target target)
    vyn_configure_target(${target})
    target_compile_options(${target} PRIVATE $<$<CONFIG:Debug>:-O0 -g1>)
endfunction()

# vyn_configure_target(<target>): what every compiled target of this tree shares.
function(vyn_configure_target target)
    target_compile_features(${target} PUBLIC cxx_std_20)
    target_compile_options(${target} PRIVATE ${vynWarnings})
endfunction()
