# The tests are 160 programs of 15 MB: where binutils brings gold, they are linked by it in a third of the time. What is
# shipped is linked by the system's own linker.
if(CMAKE_BUILD_TYPE STREQUAL "Debug" AND NOT WIN32 AND NOT FELDKRANZ_FUZZ)
  include(CheckLinkerFlag)
  check_linker_flag(CXX "-fuse-ld=gold" FELDKRANZ_GOLD)
  if(FELDKRANZ_GOLD)
    add_link_options(-fuse-ld=gold)
  endif()
endif()
