# vyn_add_library(<folder> [APART] [DEPENDS <folder>...] [BUILD_WITH <target>...]
#                 [PUBLIC_HEADERS <header>...])
#
# The library of src/<folder>: all its sources and headers, as target vyn_<folder> and Vyn::<folder>.
# DEPENDS names the folders that its headers or sources include. APART keeps it out of
# Vyn::interchange. BUILD_WITH names targets that its sources need and its users do not.
# PUBLIC_HEADERS names the headers to install when they are not all of the folder's.
# A folder without sources becomes an INTERFACE library.
function(vyn_add_library folder)
    cmake_parse_arguments(PARSE_ARGV 1 arg "APART" "" "DEPENDS;BUILD_WITH;PUBLIC_HEADERS")
    set(target vyn_${folder})
    set(root ${PROJECT_SOURCE_DIR}/src)
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${root}/${folder}/*.cpp)
    file(GLOB_RECURSE headers CONFIGURE_DEPENDS ${root}/${folder}/*.h)
    if(arg_PUBLIC_HEADERS)
        list(TRANSFORM arg_PUBLIC_HEADERS PREPEND ${root}/${folder}/ OUTPUT_VARIABLE headers)
    endif()

    if(sources)
        set(scope PUBLIC)
        add_library(${target} STATIC ${sources})
        vyn_configure_target(${target})
        foreach(needed IN LISTS arg_BUILD_WITH)
            target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:${needed}>)
        endforeach()
    else()
        set(scope INTERFACE)
        add_library(${target} INTERFACE)
        target_compile_features(${target} INTERFACE cxx_std_20)
    endif()

    target_sources(${target} ${scope} FILE_SET HEADERS BASE_DIRS ${root} FILES ${headers})
    list(TRANSFORM arg_DEPENDS PREPEND vyn_)
    target_link_libraries(${target} ${scope} ${arg_DEPENDS})
    set_target_properties(${target} PROPERTIES EXPORT_NAME ${folder})
    add_library(Vyn::${folder} ALIAS ${target})

    set_property(GLOBAL APPEND PROPERTY VYN_TARGETS ${target})
    if(NOT arg_APART)
        set_property(GLOBAL APPEND PROPERTY VYN_INTERCHANGE ${target})
    endif()
endfunction()

# vyn_add_interchange(): Vyn::interchange, every library that is not APART, under one name.
function(vyn_add_interchange)
    get_property(libraries GLOBAL PROPERTY VYN_INTERCHANGE)
    add_library(vyn_interchange INTERFACE)
    target_link_libraries(vyn_interchange INTERFACE ${libraries})
    set_target_properties(vyn_interchange PROPERTIES EXPORT_NAME interchange)
    add_library(Vyn::interchange ALIAS vyn_interchange)
    set_property(GLOBAL APPEND PROPERTY VYN_TARGETS vyn_interchange)
endfunction()
