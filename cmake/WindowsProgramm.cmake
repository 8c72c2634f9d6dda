# What the executable for Windows carries beside its code: icon, version, and the manifest that asks for long
# paths, UTF-8 and the screen's own resolution.
configure_file("${PROJECT_SOURCE_DIR}/packaging/windows/feldkranz.manifest.in"
  "${PROJECT_BINARY_DIR}/erzeugt/feldkranz.manifest" @ONLY)
configure_file("${PROJECT_SOURCE_DIR}/packaging/windows/feldkranz.rc.in"
  "${PROJECT_BINARY_DIR}/erzeugt/feldkranz.rc" @ONLY)
enable_language(RC)
target_sources(feldkranz PRIVATE "${PROJECT_BINARY_DIR}/erzeugt/feldkranz.rc")
target_link_options(feldkranz PRIVATE -s -Wl,--no-insert-timestamp)
