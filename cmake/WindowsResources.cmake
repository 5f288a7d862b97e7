# mindloft_windows_resources(PROGRAM): version, icon and manifest of a Windows program, app/windows/PROGRAM.rc.
function(mindloft_windows_resources program)
  if(NOT WIN32)
    return()
  endif()
  set(folder ${PROJECT_SOURCE_DIR}/app/windows)
  configure_file(${folder}/version.rc.in ${PROJECT_BINARY_DIR}/windows/version.rc @ONLY)
  target_sources(${program} PRIVATE ${folder}/${program}.rc)
  target_include_directories(${program} PRIVATE ${folder} ${PROJECT_BINARY_DIR}/windows)
  set_source_files_properties(${folder}/${program}.rc PROPERTIES
    OBJECT_DEPENDS "${folder}/mindloft.manifest;${folder}/app.ico;${folder}/version.rc.in")
endfunction()
