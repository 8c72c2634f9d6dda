# The pictures travel inside the program, as :/bilder/<folder>/<picture>.png. The files are committed, so that a
# build takes none of the tools that make them; the target bilder makes them anew from assets/malen.
file(GLOB FELDKRANZ_BILDER CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/assets/png/*/*.png")
qt_add_resources(fenster bilder PREFIX /bilder BASE "${PROJECT_SOURCE_DIR}/assets/png" FILES ${FELDKRANZ_BILDER}
  OPTIONS --no-compress)

add_custom_target(bilder COMMAND python3 "${PROJECT_SOURCE_DIR}/assets/bilder.py" VERBATIM)
