# Headers "tekstit/<file>.h" that name the numbers of texts and messages, made from data/tekstit/*.csv and
# data/virheet.csv. Every target of ours can include them. With the whole tree goes the check that each text has a user.
set(LUODUT "${CMAKE_BINARY_DIR}/luodut")
file(MAKE_DIRECTORY "${LUODUT}/tekstit")
file(GLOB tekstitiedostot CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/data/tekstit/*.csv")
list(APPEND tekstitiedostot "${CMAKE_SOURCE_DIR}/data/virheet.csv")

set(otsikot)
foreach(tiedosto IN LISTS tekstitiedostot)
  cmake_path(GET tiedosto STEM nimi)
  add_custom_command(
    OUTPUT "${LUODUT}/tekstit/${nimi}.h"
    COMMAND ${Python3_EXECUTABLE} "${CMAKE_SOURCE_DIR}/data/rakenna_tekstinumerot.py" "${tiedosto}"
        "${LUODUT}/tekstit/${nimi}.h"
    DEPENDS "${CMAKE_SOURCE_DIR}/data/rakenna_tekstinumerot.py" "${tiedosto}"
    COMMENT "Nimetään tekstit: ${nimi}"
    VERBATIM)
  list(APPEND otsikot "${LUODUT}/tekstit/${nimi}.h")
endforeach()
add_custom_target(tekstinumerot DEPENDS ${otsikot})

# lumi_tekstinumerot(<target>): the target's sources may include the headers.
function(lumi_tekstinumerot kohde)
  target_include_directories(${kohde} PUBLIC "${LUODUT}")
  add_dependencies(${kohde} tekstinumerot)
endfunction()

file(GLOB_RECURSE kayttajat CONFIGURE_DEPENDS
     "${CMAKE_SOURCE_DIR}/[abcklmrsuv]*/*.cpp" "${CMAKE_SOURCE_DIR}/[abcklmrsuv]*/*.h" "${CMAKE_SOURCE_DIR}/ui/forms/*.ui")
list(FILTER kayttajat EXCLUDE REGEX "^${CMAKE_BINARY_DIR}/")
add_custom_command(
  OUTPUT "${LUODUT}/tekstit.tarkistettu"
  COMMAND ${Python3_EXECUTABLE} -B "${CMAKE_SOURCE_DIR}/tools/tarkista_tekstit.py"
  COMMAND ${CMAKE_COMMAND} -E touch "${LUODUT}/tekstit.tarkistettu"
  DEPENDS "${CMAKE_SOURCE_DIR}/tools/tarkista_tekstit.py" ${tekstitiedostot} ${kayttajat}
  COMMENT "Tarkistetaan tekstien käyttö"
  VERBATIM)
add_custom_target(tekstitarkistus ALL DEPENDS "${LUODUT}/tekstit.tarkistettu")
