# Gives a program for Windows its version, its icon, and the manifest that asks for UTF-8, names of any
# length and every density of the display. Nothing on other systems.
function(kestrum_windows_program target description)
  if(NOT WIN32)
    return()
  endif()
  set(KESTRUM_PROGRAM "${target}")
  set(KESTRUM_DESCRIPTION "${description}")
  configure_file("${PROJECT_SOURCE_DIR}/cmake/windows_program.rc.in"
    "${CMAKE_CURRENT_BINARY_DIR}/${target}.rc" @ONLY)
  target_sources(${target} PRIVATE "${CMAKE_CURRENT_BINARY_DIR}/${target}.rc")
endfunction()
