# Precompiled headers, one per kind of target: plain, Qt, test, Qt test. A target takes one with lumi_esikaannos().
set(ESI_STD
    <algorithm> <array> <cmath> <cstdint> <filesystem> <fstream> <functional> <map> <memory> <optional> <span> <sstream>
    <stdexcept> <string> <string_view> <unordered_map> <utility> <variant> <vector>)
set(ESI_QT <QtCore/QtCore> <QtGui/QtGui> <QtWidgets/QtWidgets>)

file(WRITE "${CMAKE_BINARY_DIR}/tyhja.cpp" "// Holds the precompiled headers; no code.\n")

function(lumi_esi nimi)
  cmake_parse_arguments(A "" "" "OTSIKOT;LINKIT" ${ARGN})
  add_library(${nimi} OBJECT EXCLUDE_FROM_ALL "${CMAKE_BINARY_DIR}/tyhja.cpp")
  target_link_libraries(${nimi} PRIVATE ${A_LINKIT})
  target_precompile_headers(${nimi} PRIVATE ${A_OTSIKOT})
endfunction()

lumi_esi(esi OTSIKOT ${ESI_STD})
if(NOT LUMIVIRTA_FUZZ)
  add_library(qt INTERFACE)
  target_link_libraries(qt INTERFACE Qt6::Widgets Qt6::Svg)
  lumi_esi(esi_testi OTSIKOT ${ESI_STD} <gtest/gtest.h> LINKIT GTest::gtest)
  lumi_esi(esi_qt OTSIKOT ${ESI_STD} ${ESI_QT} LINKIT qt)
  lumi_esi(esi_qt_testi OTSIKOT ${ESI_STD} ${ESI_QT} <gtest/gtest.h> LINKIT qt Qt6::Test GTest::gtest)
endif()

function(lumi_esikaannos kohde esi)
  target_precompile_headers(${kohde} REUSE_FROM ${esi})
endfunction()
