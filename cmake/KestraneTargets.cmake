# How every target of the project is made. A folder of src/ is one library: kestrane_library names its sources and what it may
# see, and nothing else reaches it. PUBLIC dependencies are those that the folder's headers show.

add_library(kestrane_options INTERFACE)
target_compile_features(kestrane_options INTERFACE cxx_std_20)
target_compile_options(kestrane_options INTERFACE
  -Wall -Wextra -Wpedantic -Werror -Wconversion -Wno-sign-conversion -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
  -Wcast-align -Wold-style-cast -Wimplicit-fallthrough)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # With -O3 this compiler sees overlaps in joined std::strings that are not there.
  target_compile_options(kestrane_options INTERFACE -Wno-restrict)
endif()
target_compile_definitions(kestrane_options INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_NO_CAST_FROM_BYTEARRAY QT_NO_FOREACH
  QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_STRICT_ITERATORS QT_DISABLE_DEPRECATED_BEFORE=0x060400)
if(KESTRANE_SANITIZE)
  target_compile_options(kestrane_options INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(kestrane_options INTERFACE -fsanitize=address,undefined)
endif()
if(KESTRANE_FUZZ)
  target_compile_options(kestrane_options INTERFACE
    -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(kestrane_options INTERFACE -fsanitize=address,undefined)
endif()

# kestrane_library(NAME SOURCES a.cpp ... [PUBLIC dep ...] [PRIVATE dep ...])
# One that links Qt6::Widgets has its headers read by moc.
function(kestrane_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;PUBLIC;PRIVATE" ${ARGN})
  add_library(${name} STATIC ${ARG_SOURCES})
  target_include_directories(${name} PUBLIC "${PROJECT_SOURCE_DIR}/src")
  target_link_libraries(${name} PUBLIC kestrane_options ${ARG_PUBLIC} PRIVATE ${ARG_PRIVATE})
  if("Qt6::Widgets" IN_LIST ARG_PUBLIC OR "Qt6::Widgets" IN_LIST ARG_PRIVATE)
    set_target_properties(${name} PROPERTIES AUTOMOC ON)
  endif()
endfunction()

# kestrane_program(NAME SOURCES a.cpp ... LINK dep ...)
# It stands in bin/, with the report layouts beside it.
function(kestrane_program name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE kestrane_options ${ARG_LINK})
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
  add_dependencies(${name} kestrane_layouts)
endfunction()

# kestrane_test(NAME SOURCES a_test.cpp ... LINK dep ... [LABELS unit|servers ...] [TIMEOUT seconds]
#               [SERVIDORES todos|postgresql|mariadb] [QT gui|widgets])
# With SERVIDORES it runs beside private database servers that start and end with it, and its label is servers. With QT an application of
# that kind stands around it, without a screen; widgets brings Qt Test.
function(kestrane_test name)
  cmake_parse_arguments(ARG "" "TIMEOUT;SERVIDORES;QT" "SOURCES;LINK;LABELS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}/tests")
  target_link_libraries(${name} PRIVATE kestrane_options ${ARG_LINK})
  if(ARG_QT)
    target_link_libraries(${name} PRIVATE kestrane_test_${ARG_QT})
  else()
    target_link_libraries(${name} PRIVATE GTest::gmock_main)
  endif()
  if(NOT ARG_TIMEOUT)
    set(ARG_TIMEOUT 300)
  endif()
  set(command ${name})
  if(ARG_SERVIDORES)
    list(APPEND ARG_LABELS servers)
    set(command "${PROJECT_SOURCE_DIR}/tests/servidores/con_servidores.sh" --solo ${ARG_SERVIDORES} $<TARGET_FILE:${name}>)
  endif()
  if(NOT ARG_LABELS)
    set(ARG_LABELS unit)
  endif()
  add_test(NAME ${name} COMMAND ${command})
  set_tests_properties(${name} PROPERTIES LABELS "${ARG_LABELS}" TIMEOUT ${ARG_TIMEOUT})
endfunction()
