# kob_public_headers(OUT core|persistence|qt): the headers that a user of the library sees, as their include lines name them,
# below KOB_PUBLIC_ROOT_core, KOB_PUBLIC_ROOT_persistence and KOB_PUBLIC_ROOT_qt.
set(KOB_PUBLIC_ROOT_core "${PROJECT_SOURCE_DIR}")
set(KOB_PUBLIC_ROOT_persistence "${PROJECT_SOURCE_DIR}")
set(KOB_PUBLIC_ROOT_qt "${PROJECT_SOURCE_DIR}/bindings/qt")

function(kob_public_headers out part)
  set(folder_core kobtraduction)
  set(folder_persistence kobpersistence)
  set(folder_qt kobtraductionqt)
  file(GLOB_RECURSE headers CONFIGURE_DEPENDS RELATIVE "${KOB_PUBLIC_ROOT_${part}}"
       "${KOB_PUBLIC_ROOT_${part}}/${folder_${part}}/*.h")
  file(STRINGS "${PROJECT_SOURCE_DIR}/cmake/internal-headers.txt" internal REGEX "^[^#]")
  if(internal)
    list(REMOVE_ITEM headers ${internal})
  endif()
  set(${out} ${headers} PARENT_SCOPE)
endfunction()
