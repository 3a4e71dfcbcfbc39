# What `cmake --install` lays down: archives, headers under include/vyn, vynx when it is built, and
# the package that find_package(VynInterchange) reads.

include(CMakePackageConfigHelpers)
set(vynPackageDir ${CMAKE_INSTALL_LIBDIR}/cmake/VynInterchange)

get_property(targets GLOBAL PROPERTY VYN_TARGETS)
foreach(target IN LISTS targets)
    get_target_property(sets ${target} INTERFACE_HEADER_SETS)
    if(sets)
        install(TARGETS ${target} EXPORT VynInterchangeTargets
                FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/vyn)
    else()
        install(TARGETS ${target} EXPORT VynInterchangeTargets)
    endif()
endforeach()
install(EXPORT VynInterchangeTargets NAMESPACE Vyn:: DESTINATION ${vynPackageDir})

if(TARGET vynx)
    install(TARGETS vynx)
endif()

configure_package_config_file(
    ${PROJECT_SOURCE_DIR}/cmake/VynInterchangeConfig.cmake.in
    ${PROJECT_BINARY_DIR}/VynInterchangeConfig.cmake INSTALL_DESTINATION ${vynPackageDir})
write_basic_package_version_file(
    ${PROJECT_BINARY_DIR}/VynInterchangeConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/VynInterchangeConfig.cmake
              ${PROJECT_BINARY_DIR}/VynInterchangeConfigVersion.cmake
        DESTINATION ${vynPackageDir})
