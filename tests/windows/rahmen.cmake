# GoogleTest for Windows, built from the sources that Debian has of it (package googletest).
add_subdirectory(/usr/src/googletest/googletest "${CMAKE_CURRENT_BINARY_DIR}/googletest" EXCLUDE_FROM_ALL)
foreach(name gtest gtest_main)
  if(NOT TARGET GTest::${name})
    add_library(GTest::${name} ALIAS ${name})
  endif()
endforeach()
