# cserko_mixer: the sound library, from wherever this system has it.
add_library(cserko_mixer INTERFACE)
if(WIN32)
  find_package(SDL2 REQUIRED)
  find_package(SDL2_mixer REQUIRED)
  target_link_libraries(cserko_mixer INTERFACE SDL2_mixer::SDL2_mixer SDL2::SDL2)
  target_compile_definitions(cserko_mixer INTERFACE SDL_MAIN_HANDLED) # `main` is the program's own
else()
  pkg_check_modules(SDL2_MIXER REQUIRED IMPORTED_TARGET SDL2_mixer sdl2)
  target_link_libraries(cserko_mixer INTERFACE PkgConfig::SDL2_MIXER)
endif()
