# SPDX-License-Identifier: MIT
# Installing, and the CMake package with which another host or tool links the libraries:
#   find_package(Quillmesh)
#   target_link_libraries(tool PRIVATE Quillmesh::Quillmesh Quillmesh::OrvaneFramework)
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/Quillmesh)

set(host_libraries OrvaneFramework MeshChecker OrvaneFiles)
if(TARGET CgMaterial)
    list(APPEND host_libraries CgMaterial)
    install(FILES host/cgmaterial/cgprogram.h host/cgmaterial/export.h
            DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/host/cgmaterial)
endif()

set_target_properties(${host_libraries} Quillmesh PROPERTIES
    INSTALL_RPATH "$ORIGIN;$ORIGIN/../${CMAKE_INSTALL_LIBDIR}")
set_target_properties(quillmesh PROPERTIES
    INSTALL_RPATH "$ORIGIN/../${CMAKE_INSTALL_LIBDIR};$ORIGIN/../plugins")

install(TARGETS ${host_libraries}
        EXPORT QuillmeshTargets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(TARGETS Quillmesh EXPORT QuillmeshTargets LIBRARY DESTINATION plugins)
install(TARGETS quillmesh RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(DIRECTORY ${PROJECT_BINARY_DIR}/share/orvane DESTINATION ${CMAKE_INSTALL_DATADIR})

install(DIRECTORY host/framework/orvane DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
        FILES_MATCHING PATTERN "*.h")
install(FILES host/meshchecker/export.h host/meshchecker/meshchecker.h
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/host/meshchecker)
install(FILES host/files/curvebinding.h host/files/curvefile.h host/files/export.h
              host/files/meshfile.h host/files/safefile.h
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/host/files)
install(FILES graph/export.h graph/graphwalk.h graph/intersectionnode.h graph/pointoncurve.h
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/graph)
install(FILES mesh/holes.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/mesh)
install(FILES operation/manualretopooperation.h operation/runreport.h
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/operation)

install(EXPORT QuillmeshTargets NAMESPACE Quillmesh:: DESTINATION ${package_dir})
configure_package_config_file(scripts/QuillmeshConfig.cmake.in
    ${PROJECT_BINARY_DIR}/QuillmeshConfig.cmake INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/QuillmeshConfigVersion.cmake
    COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/QuillmeshConfig.cmake
              ${PROJECT_BINARY_DIR}/QuillmeshConfigVersion.cmake
        DESTINATION ${package_dir})
