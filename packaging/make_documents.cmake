# The documents as HTML, for the browser and for F1. lowdown is a fifth of a megabyte and knows the
# tables and the anchors that the texts use.
find_program(KESTRUM_LOWDOWN lowdown)
if(KESTRUM_LOWDOWN)
  set(pages)
  foreach(name manual fields files automation charts)
    set(page "${CMAKE_BINARY_DIR}/doc/${name}.html")
    add_custom_command(OUTPUT "${page}" VERBATIM
      DEPENDS "${PROJECT_SOURCE_DIR}/docs/${name}.md" make_page.cmake
      COMMAND ${CMAKE_COMMAND} "-DLOWDOWN=${KESTRUM_LOWDOWN}"
        "-DSOURCE=${PROJECT_SOURCE_DIR}/docs/${name}.md" "-DPAGE=${page}"
        -P "${CMAKE_CURRENT_SOURCE_DIR}/make_page.cmake")
    list(APPEND pages "${page}")
  endforeach()
  file(GLOB pictures CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/docs/pictures/*.png"
    "${PROJECT_SOURCE_DIR}/docs/pictures/*.svg")
  file(COPY ${pictures} DESTINATION "${CMAKE_BINARY_DIR}/doc/pictures")
  file(COPY manual.css DESTINATION "${CMAKE_BINARY_DIR}/doc")
  # What opens a file for F1 mostly leaves the chapter of its address behind, so each has a page that
  # leads on.
  foreach(chapter main-the-engine a-flow-test comparing-two-tests the-graph text-report)
    file(CONFIGURE OUTPUT "${CMAKE_BINARY_DIR}/doc/manual-${chapter}.html" CONTENT
      "<!DOCTYPE html>
<html lang=\"en\"><head><meta charset=\"utf-8\"><title>Manual - Kestrum Suite</title>
<meta http-equiv=\"refresh\" content=\"0; url=manual.html#${chapter}\"></head>
<body><a href=\"manual.html#${chapter}\">Manual</a></body></html>
")
  endforeach()
  add_custom_target(kestrum_documents ALL DEPENDS ${pages})
else()
  message(STATUS "lowdown is not there: the documents are not made as HTML")
endif()
