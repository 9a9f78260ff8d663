# Two Debian packages of the installed files: `cserko` for the machine it is built on, `cserko-data` for all.
set(debian "${CMAKE_CURRENT_LIST_DIR}")

# The changelog of a Debian package has a form of its own.
set(changelog "${CMAKE_CURRENT_BINARY_DIR}/changelog")
add_custom_command(
  OUTPUT "${changelog}"
  COMMAND "${debian}/changelog.sh" "${CSERKO_MAINTAINER}" "${changes}" "${changelog}"
  DEPENDS "${debian}/changelog.sh" "${changes}"
  VERBATIM)
compressed("${changelog}" "${changelog}.gz")

foreach(component program data)
  set(package cserko)
  if(component STREQUAL "data")
    set(package cserko-data)
  endif()
  set(for_package COMPONENT ${component} EXCLUDE_FROM_ALL)
  install(FILES "${changelog}.gz" DESTINATION share/doc/${package} ${for_package})
  install(FILES "${debian}/${package}.copyright" DESTINATION share/doc/${package} RENAME copyright ${for_package})
endforeach()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_DIRECTORY "${CMAKE_CURRENT_BINARY_DIR}/packages")
set(CPACK_OUTPUT_FILE_PREFIX "${CSERKO_OUT_DIR}/deb")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_COMPONENTS_ALL program data)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ
                                                WORLD_EXECUTE)
set(CPACK_PACKAGE_CONTACT "${CSERKO_MAINTAINER}")
set(CPACK_PACKAGE_VENDOR "The authors of Tintakő Cserkó")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_THREADS 0)
set(CPACK_DEBIAN_PACKAGE_SECTION education)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)

set(CPACK_DEBIAN_PROGRAM_PACKAGE_NAME cserko)
set(CPACK_DEBIAN_PROGRAM_PACKAGE_SHLIBDEPS ON)
# The letters have the measures that the suite expects; the pack is made for this very version.
set(CPACK_DEBIAN_PROGRAM_PACKAGE_DEPENDS "cserko-data (= ${PROJECT_VERSION}), fonts-liberation")
# A desktop of Wayland alone, and instruments for the tunes.
set(CPACK_DEBIAN_PROGRAM_PACKAGE_RECOMMENDS "qt6-wayland, fluidr3mono-gm-soundfont | fluid-soundfont-gm | timgm6mb-soundfont")
set(CPACK_DEBIAN_PROGRAM_DESCRIPTION
    "playful reading and spelling exercises in Hungarian
Twenty exercises for children with dyslexia, to be played beside a parent or
a therapist: letters to put in order, syllables to find, words hidden on a
board, sentences to match with pictures. After each finished set the child is
praised, and now and then rewarded with a drum kit or a drawing board.
All texts are Hungarian.
.
The package has the program, its help viewer, and a tool that adds words of
one's own.")

set(CPACK_DEBIAN_DATA_PACKAGE_NAME cserko-data)
set(CPACK_DEBIAN_DATA_PACKAGE_ARCHITECTURE all)
set(CPACK_DEBIAN_DATA_DESCRIPTION
    "words, pictures and sounds of the reading exercises of Cserkó
More than 700 Hungarian words, each with a picture, syllables, a definition
and statements, the sounds, tunes and colouring pages of the exercises, and
their help pages.
.
The package is of use together with the program, which cserko has.")
include(CPack)

# The target that makes both; what they are made of is built before.
add_custom_target(
  deb
  COMMAND ${CMAKE_CPACK_COMMAND} --config "${CMAKE_BINARY_DIR}/CPackConfig.cmake"
  DEPENDS program
  USES_TERMINAL VERBATIM)
