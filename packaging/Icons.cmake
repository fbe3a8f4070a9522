# The icons of the program and of its files, in every size that desktops use. The build makes
# them from the drawings; none are kept with the sources.

include(${CMAKE_CURRENT_LIST_DIR}/PixelArt.cmake)
set(icon_sizes 16 22 24 32 48 64 96 128 192 256 512)
set(icon_sources ${PROJECT_SOURCE_DIR}/data/icons)
set(icon_folder ${CMAKE_INSTALL_DATADIR}/icons/hicolor)

install(FILES ${icon_sources}/tephrexedit.svg DESTINATION ${icon_folder}/scalable/apps)
install(FILES ${icon_sources}/application-x-tephrex-record.svg
  DESTINATION ${icon_folder}/scalable/mimetypes)

find_program(RSVG_CONVERT rsvg-convert)
if(NOT RSVG_CONVERT)
  message(STATUS "rsvg-convert was not found: only the drawings of the icons are installed")
  foreach(size 16 32)
    install(FILES ${icon_sources}/form-${size}.xpm
      DESTINATION ${icon_folder}/${size}x${size}/apps RENAME tephrexedit.xpm)
  endforeach()
  return()
endif()

# add_icon(NAME KIND SIZE DRAWING): makes one icon and installs it.
function(add_icon name kind size drawing)
  set(folder ${PROJECT_BINARY_DIR}/icons/${size}x${size}/${kind})
  add_custom_command(OUTPUT ${folder}/${name}.png
    COMMAND ${CMAKE_COMMAND} -E make_directory ${folder}
    COMMAND ${RSVG_CONVERT} -w ${size} -h ${size} -o ${folder}/${name}.png ${drawing}
    DEPENDS ${drawing} VERBATIM)
  set_property(GLOBAL APPEND PROPERTY TEPHREX_ICONS ${folder}/${name}.png)
  install(FILES ${folder}/${name}.png DESTINATION ${icon_folder}/${size}x${size}/${kind})
endfunction()

foreach(size IN LISTS icon_sizes)
  add_icon(application-x-tephrex-record mimetypes ${size}
    ${icon_sources}/application-x-tephrex-record.svg)
  # Small sizes were drawn pixel by pixel: a scaled drawing would be blurred.
  set(pixels ${icon_sources}/form-${size}.xpm)
  set(drawing ${icon_sources}/tephrexedit.svg)
  if(EXISTS ${pixels})
    set(drawing ${PROJECT_BINARY_DIR}/icons/form-${size}.svg)
    pixel_art(${pixels} ${drawing})
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${pixels})
  endif()
  add_icon(tephrexedit apps ${size} ${drawing})
endforeach()

get_property(icons GLOBAL PROPERTY TEPHREX_ICONS)
add_custom_target(icons ALL DEPENDS ${icons})
