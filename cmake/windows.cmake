# What makes a program one of Windows; on other systems nothing of this is built.

# cserko_windows_program(<target> <file name> <description> [WINDOW]): icon, version and manifest of an installed program.
# WINDOW: it has windows and no console.
function(cserko_windows_program target file_name description)
  if(NOT WIN32)
    return()
  endif()
  cmake_parse_arguments(PARSE_ARGV 3 arg "WINDOW" "" "")
  set(packaging "${PROJECT_SOURCE_DIR}/packaging/windows")
  set(CSERKO_PROGRAM_FILE "${file_name}")
  set(CSERKO_PROGRAM_DESCRIPTION "${description}")
  set(CSERKO_MANIFEST "${packaging}/program.manifest")
  configure_file("${packaging}/program.rc.in" "${CMAKE_CURRENT_BINARY_DIR}/${target}.rc" @ONLY)
  target_sources(${target} PRIVATE "${CMAKE_CURRENT_BINARY_DIR}/${target}.rc")
  set_source_files_properties("${CMAKE_CURRENT_BINARY_DIR}/${target}.rc" TARGET_DIRECTORY ${target}
                              PROPERTIES OBJECT_DEPENDS "${CSERKO_WINDOWS_ICON};${CSERKO_MANIFEST}")
  if(arg_WINDOW)
    set_target_properties(${target} PROPERTIES WIN32_EXECUTABLE ON)
  endif()
endfunction()

if(WIN32)
  enable_language(RC)
  set(CMAKE_RC_FLAGS "${CMAKE_RC_FLAGS} -c 65001")
  set(CSERKO_WINDOWS_ICON "" CACHE FILEPATH "The icon of the programs, an .ico file")
  # Large tests have more sections than the old format of object files can count.
  add_compile_options(-Wa,-mbig-obj)
endif()
