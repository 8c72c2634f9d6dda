# feldkranz_moc(<target> <source>...): the toolkit's generator for test programs. Each of their classes stands in
# the source itself, which includes its own "<source>.moc" at the end, so one short command a source does what the
# build tool's own mechanism would do with three steps and an object file more in each of a hundred programs.
function(feldkranz_moc ziel)
  foreach(quelle IN LISTS ARGN)
    cmake_path(ABSOLUTE_PATH quelle OUTPUT_VARIABLE pfad)
    file(STRINGS "${pfad}" zeile REGEX "^#include \".*\\.moc\"$")
    if(zeile)
      cmake_path(GET pfad STEM LAST_ONLY stamm)
      set(moc "${CMAKE_CURRENT_BINARY_DIR}/moc/${stamm}.moc")
      add_custom_command(OUTPUT "${moc}" COMMAND Qt6::moc -o "${moc}" "${pfad}" DEPENDS "${pfad}" VERBATIM)
      target_sources(${ziel} PRIVATE "${moc}")
      target_include_directories(${ziel} PRIVATE "${CMAKE_CURRENT_BINARY_DIR}/moc")
    endif()
  endforeach()
endfunction()
