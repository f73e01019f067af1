# lumi_lomakkeet(<target> <folder>): compiles each frmX.ui of the folder with uic and adds to the target a generated
# table from form name to the function that makes the window. The table's interface is the generated header
# "Lomaketaulu.h": std::span<const LomakeRivi> Lomaketaulu(), rows in order of name.
function(lumi_lomakkeet kohde kansio)
  file(GLOB lomakkeet CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/${kansio}/*.ui")
  set(ulos "${CMAKE_BINARY_DIR}/lomakkeet")
  set(esittelyt)
  set(rivit)
  foreach(ui IN LISTS lomakkeet)
    cmake_path(GET ui STEM nimi)
    # A form's outermost widget gives the class of the window (QDialog, QMainWindow, QWidget).
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${ui}")
    file(STRINGS "${ui}" juuri REGEX "<widget class=" LIMIT_COUNT 1)
    if(NOT juuri MATCHES "class=\"([A-Za-z]+)\"")
      message(FATAL_ERROR "${ui}: no outermost widget")
    endif()
    set(luokka ${CMAKE_MATCH_1})
    add_custom_command(OUTPUT "${ulos}/ui_${nimi}.h" DEPENDS "${ui}" VERBATIM
                       COMMAND Qt6::uic -o "${ulos}/ui_${nimi}.h" "${ui}"
                       COMMENT "uic ${nimi}.ui")
    file(CONFIGURE OUTPUT "${ulos}/tee_${nimi}.cpp" @ONLY CONTENT [[
#include "ui_@nimi@.h"

QWidget* tee_@nimi@(QWidget* vanhempi) {
  auto* ikkuna = new @luokka@(vanhempi);
  Ui::@nimi@().setupUi(ikkuna);
  return ikkuna;
}
]])
    target_sources(${kohde} PRIVATE "${ulos}/tee_${nimi}.cpp" "${ulos}/ui_${nimi}.h")
    string(APPEND esittelyt "QWidget* tee_${nimi}(QWidget*);\n")
    string(APPEND rivit "    {\"${nimi}\", tee_${nimi}},\n")
  endforeach()
  file(CONFIGURE OUTPUT "${ulos}/Lomaketaulu.h" @ONLY CONTENT [[
#pragma once
#include <span>

class QWidget;

/// One row per form: its name and the function that makes its window, unshown, owned by the parent if there is one.
struct LomakeRivi {
  const char* nimi;
  QWidget* (*tee)(QWidget* vanhempi);
};
std::span<const LomakeRivi> Lomaketaulu();
]])
  list(LENGTH lomakkeet maara)
  file(CONFIGURE OUTPUT "${ulos}/Lomaketaulu.cpp" @ONLY CONTENT [[
#include "Lomaketaulu.h"

@esittelyt@
static const LomakeRivi kLomakkeet[] = {
@rivit@    {nullptr, nullptr}};

std::span<const LomakeRivi> Lomaketaulu() { return {kLomakkeet, @maara@}; }
]])
  target_sources(${kohde} PRIVATE "${ulos}/Lomaketaulu.cpp")
  target_include_directories(${kohde} PUBLIC "${ulos}")
  file(GLOB generoidut "${ulos}/tee_*.cpp")
  set_source_files_properties("${ulos}/Lomaketaulu.cpp" ${generoidut} PROPERTIES SKIP_AUTOMOC ON)
endfunction()
