# Targets of the tree: layers, programs, tests, fuzz targets, benchmarks. A folder without sources is an error: what it
# should hold would be left out without a word.

# Sources of the folders, headers excluded, without main.cpp.
function(lumi_lahteet tulos)
  set(kaikki)
  foreach(kansio IN LISTS ARGN)
    file(GLOB loydot CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/${kansio}/*.cpp")
    if(NOT loydot)
      message(FATAL_ERROR "${kansio}: the folder has no sources")
    endif()
    list(APPEND kaikki ${loydot})
  endforeach()
  list(FILTER kaikki EXCLUDE REGEX "/main\\.cpp$")
  set(${tulos} ${kaikki} PARENT_SCOPE)
endfunction()

# lumi_kerros(<name> [QT] KANSIOT <folders> [LINKIT <targets>]): static library of a layer.
function(lumi_kerros nimi)
  cmake_parse_arguments(A "QT" "" "KANSIOT;LINKIT" ${ARGN})
  lumi_lahteet(lahteet ${A_KANSIOT})
  add_library(${nimi} STATIC ${lahteet})
  target_include_directories(${nimi} PUBLIC "${CMAKE_SOURCE_DIR}")
  target_link_libraries(${nimi} PUBLIC ${A_LINKIT})
  lumi_tekstinumerot(${nimi})
  if(A_QT)
    set_target_properties(${nimi} PROPERTIES AUTOMOC ON)
    target_link_libraries(${nimi} PUBLIC qt)
    lumi_esikaannos(${nimi} esi_qt)
  else()
    lumi_esikaannos(${nimi} esi)
  endif()
endfunction()

# lumi_ohjelma(<name> [QT] LAHDE <main.cpp> LINKIT <targets>): program, placed beside its data.
function(lumi_ohjelma nimi)
  cmake_parse_arguments(A "QT" "LAHDE" "LINKIT" ${ARGN})
  add_executable(${nimi} "${A_LAHDE}")
  set_target_properties(${nimi} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${LUMIVIRTA_KOTI}")
  target_link_libraries(${nimi} PRIVATE ${A_LINKIT})
  if(A_QT)
    lumi_esikaannos(${nimi} esi_qt)
  else()
    lumi_esikaannos(${nimi} esi)
  endif()
endfunction()

# Environment of all tests, set by CTest itself when it reads them: settings of their own, no screen, the built data.
function(lumi_testiymparisto)
  set(rivit
      "set(ENV{LUMIVIRTA_KOTI} [==[${LUMIVIRTA_KOTI}]==])"
      "set(ENV{LUMIVIRTA_LAHDE} [==[${CMAKE_SOURCE_DIR}]==])"
      "set(ENV{XDG_CONFIG_HOME} [==[${CMAKE_BINARY_DIR}/asetukset]==])"
      "set(ENV{QT_QPA_PLATFORM} offscreen)"
      "set(ENV{LSAN_OPTIONS} [==[suppressions=${CMAKE_SOURCE_DIR}/cmake/lsan.supp:print_suppressions=0]==])")
  list(JOIN rivit "\n" rivit)
  file(WRITE "${CMAKE_BINARY_DIR}/testiymparisto.cmake" "${rivit}\n")
  set_property(DIRECTORY APPEND PROPERTY TEST_INCLUDE_FILES "${CMAKE_BINARY_DIR}/testiymparisto.cmake")
endfunction()

# lumi_testi(<name> [QT] [DIALOGIT] KANSIOT <folders under tests/> LINKIT <targets>): a GoogleTest program, with DIALOGIT
# one whose dialog scripts may fail.
# tests/<folder>/main.cpp, if any, takes the place of gtest_main.
# A test finds the built data in $LUMIVIRTA_KOTI and files of the tree under $LUMIVIRTA_LAHDE.
function(lumi_testi nimi)
  cmake_parse_arguments(A "QT;DIALOGIT" "" "KANSIOT;LINKIT" ${ARGN})
  list(TRANSFORM A_KANSIOT PREPEND "tests/")
  lumi_lahteet(lahteet ${A_KANSIOT})
  set(paaohjelma GTest::gtest_main)
  foreach(kansio IN LISTS A_KANSIOT)
    if(EXISTS "${CMAKE_SOURCE_DIR}/${kansio}/main.cpp")
      list(APPEND lahteet "${CMAKE_SOURCE_DIR}/${kansio}/main.cpp")
      set(paaohjelma)
    endif()
  endforeach()
  if(A_DIALOGIT)
    list(APPEND lahteet "${CMAKE_SOURCE_DIR}/tests/tuki/Dialogivirheet.cpp")
  endif()
  add_executable(${nimi} ${lahteet})
  target_include_directories(${nimi} PRIVATE "${CMAKE_SOURCE_DIR}")
  target_link_libraries(${nimi} PRIVATE ${A_LINKIT} ${paaohjelma} GTest::gtest GTest::gmock)
  if(A_QT)
    set_target_properties(${nimi} PROPERTIES AUTOMOC ON)
    target_link_libraries(${nimi} PRIVATE qt Qt6::Test)
    lumi_esikaannos(${nimi} esi_qt_testi)
  else()
    lumi_esikaannos(${nimi} esi_testi)
  endif()
  gtest_discover_tests(${nimi} DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60
                       TEST_PREFIX "${nimi}." PROPERTIES TIMEOUT 300)
endfunction()

# lumi_fuzz_kohteet(<folder>): one libFuzzer program per source file, under build/fuzz/fuzz/.
function(lumi_fuzz_kohteet kansio)
  lumi_lahteet(lahteet ${kansio})
  foreach(lahde IN LISTS lahteet)
    cmake_path(GET lahde STEM nimi)
    add_executable(${nimi} "${lahde}")
    set_target_properties(${nimi} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/fuzz")
    target_link_libraries(${nimi} PRIVATE model)
    target_link_options(${nimi} PRIVATE -fsanitize=fuzzer)
    lumi_esikaannos(${nimi} esi)
  endforeach()
endfunction()

# lumi_mittari(<name> [QT] KANSIO <folder> LINKIT <targets>): a Google Benchmark program.
function(lumi_mittari nimi)
  cmake_parse_arguments(A "QT" "KANSIO" "LINKIT" ${ARGN})
  lumi_lahteet(lahteet ${A_KANSIO})
  if(EXISTS "${CMAKE_SOURCE_DIR}/${A_KANSIO}/main.cpp")
    list(APPEND lahteet "${CMAKE_SOURCE_DIR}/${A_KANSIO}/main.cpp")
    set(paaohjelma benchmark::benchmark)
  else()
    set(paaohjelma benchmark::benchmark_main)
  endif()
  add_executable(${nimi} ${lahteet})
  target_include_directories(${nimi} PRIVATE "${CMAKE_SOURCE_DIR}")
  target_link_libraries(${nimi} PRIVATE ${A_LINKIT} ${paaohjelma})
  if(A_QT)
    target_link_libraries(${nimi} PRIVATE qt)
    lumi_esikaannos(${nimi} esi_qt)
  else()
    lumi_esikaannos(${nimi} esi)
  endif()
endfunction()
