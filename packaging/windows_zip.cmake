# The folder for Windows that ./package.sh --windows packs: the programs, and beside them all that they need.
install(TARGETS kestrum-cli kestrum RUNTIME DESTINATION .)
install(TARGETS kestrum_painting_module LIBRARY DESTINATION .)
install(DIRECTORY "${CMAKE_BINARY_DIR}/doc/" DESTINATION doc)
install(DIRECTORY "${PROJECT_SOURCE_DIR}/examples" DESTINATION doc)
install(FILES "${PROJECT_SOURCE_DIR}/LICENSE" DESTINATION . RENAME LICENSE.txt)

foreach(library Core Gui PrintSupport Widgets)
  install(FILES "$<TARGET_FILE:Qt6::${library}>" DESTINATION .)
endforeach()
foreach(plugin platforms/QWindowsIntegration platforms/QMinimalIntegration imageformats/QGif
    imageformats/QICO imageformats/QJpeg)
  get_filename_component(folder "${plugin}" DIRECTORY)
  get_filename_component(name "${plugin}" NAME)
  install(FILES "$<TARGET_FILE:Qt6::${name}Plugin>" DESTINATION "${folder}")
endforeach()
install(DIRECTORY "${Qt6_DIR}/../../../licences/" DESTINATION licences/qt)

# The letters that the programs are drawn for.
set(KESTRUM_FONTS /usr/share/fonts/truetype/dejavu CACHE PATH "The folder of the DejaVu fonts")
foreach(font Sans Sans-Bold SansMono)
  install(FILES "${KESTRUM_FONTS}/DejaVu${font}.ttf" DESTINATION fonts)
endforeach()
install(FILES /usr/share/doc/fonts-dejavu-core/copyright DESTINATION licences RENAME fonts-dejavu.txt)
