# Installation: the libraries, the public headers, the CMake package KOBTraduction (KOBTraduction::Core,
# KOBTraduction::Persistence, KOBTraduction::Qt) and the pkg-config files kobtraduction, kobtraduction-persistence and
# kobtraduction-qt.
include(CMakePackageConfigHelpers)
include(KobHeaders)

set(KOB_PACKAGE_DIR "${CMAKE_INSTALL_LIBDIR}/cmake/KOBTraduction")

# kob_install(TARGET core|persistence|qt EXPORT): a library with its headers; its targets file is EXPORT.cmake.
function(kob_install target part export)
  install(TARGETS ${target} EXPORT ${export})
  install(EXPORT ${export} NAMESPACE KOBTraduction:: DESTINATION "${KOB_PACKAGE_DIR}")
  kob_public_headers(headers ${part})
  foreach(header IN LISTS headers)
    get_filename_component(folder "${header}" DIRECTORY)
    install(FILES "${KOB_PUBLIC_ROOT_${part}}/${header}" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/${folder}")
  endforeach()
endfunction()

# kob_pkgconfig(NAME): from packaging/NAME.pc.in.
function(kob_pkgconfig name)
  configure_file("${PROJECT_SOURCE_DIR}/packaging/${name}.pc.in" "${PROJECT_BINARY_DIR}/packaging/${name}.pc" @ONLY)
  install(FILES "${PROJECT_BINARY_DIR}/packaging/${name}.pc" DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
endfunction()

# The prefix as seen from the folder of the .pc files, so that an installed tree can be moved.
file(RELATIVE_PATH KOB_PC_TO_PREFIX "/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/")

kob_install(KOBTraduction core KOBTraductionCoreTargets)
kob_pkgconfig(kobtraduction)
# The libraries stand side by side and find each other wherever that is.
set_target_properties(KOBPersistence PROPERTIES INSTALL_RPATH "$ORIGIN")
kob_install(KOBPersistence persistence KOBTraductionPersistenceTargets)
kob_pkgconfig(kobtraduction-persistence)
if(TARGET KOBTraductionQt)
  set_target_properties(KOBTraductionQt PROPERTIES INSTALL_RPATH "$ORIGIN")
  kob_install(KOBTraductionQt qt KOBTraductionQtTargets)
  kob_pkgconfig(kobtraduction-qt)
endif()

configure_package_config_file("${PROJECT_SOURCE_DIR}/packaging/KOBTraductionConfig.cmake.in"
                              "${PROJECT_BINARY_DIR}/packaging/KOBTraductionConfig.cmake"
                              INSTALL_DESTINATION "${KOB_PACKAGE_DIR}")
# Before 1.0 an interface may change with every minor version.
write_basic_package_version_file("${PROJECT_BINARY_DIR}/packaging/KOBTraductionConfigVersion.cmake"
                                 COMPATIBILITY SameMinorVersion)
install(FILES "${PROJECT_BINARY_DIR}/packaging/KOBTraductionConfig.cmake"
              "${PROJECT_BINARY_DIR}/packaging/KOBTraductionConfigVersion.cmake"
        DESTINATION "${KOB_PACKAGE_DIR}")
