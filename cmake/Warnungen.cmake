# One interface target carries every compiler setting that all targets share.
add_library(warnungen INTERFACE)
target_compile_options(warnungen INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast
  -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align -Wunused
  -Wdouble-promotion -Wformat=2 -Wimplicit-fallthrough)
if(FELDKRANZ_WARNINGS_AS_ERRORS)
  target_compile_options(warnungen INTERFACE -Werror)
endif()
