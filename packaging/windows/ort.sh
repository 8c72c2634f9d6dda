# Where the toolkit for Windows lies, and what it is made of. Sourced.

# Outside the checkout: it outlives a clean build, and all checkouts share it.
windows_cache="${FELDKRANZ_WINDOWS_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/feldkranz-windows}"
windows_qt="$windows_cache/qt"

# The toolkit is made again when the way it is made changes.
windows_rezept() {
  cat "$1/packaging/windows/werkzeugkasten.sh" "$1/cmake/WindowsWerkzeug.cmake" | sha256sum | cut -d' ' -f1
}
# windows_bereit <checkout>: true where the toolkit is there and made as this checkout wants it.
windows_bereit() {
  [ -e "$windows_qt/fertig" ] && [ "$(cat "$windows_qt/fertig")" = "$(windows_rezept "$1")" ]
}
