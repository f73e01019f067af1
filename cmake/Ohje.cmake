# lumi_ohje(<folder> <target folder>): the user's guide, made from Markdown. Appends to TEHDASTIEDOSTOT of the caller the
# files that it consists of.
function(lumi_ohje lahde kohde)
  set(rakentaja ${CMAKE_SOURCE_DIR}/data/rakenna_ohje.py)
  file(GLOB sivut RELATIVE ${lahde} CONFIGURE_DEPENDS ${lahde}/*.md)
  file(GLOB kuvat RELATIVE ${lahde} CONFIGURE_DEPENDS ${lahde}/kuvat/*.png)
  set(tulokset "Lumivirta 2.hlp" Ohje/tyyli.css)
  foreach(sivu IN LISTS sivut)
    string(REGEX REPLACE "\\.md$" ".html" html ${sivu})
    list(APPEND tulokset Ohje/${html})
  endforeach()
  foreach(kuva IN LISTS kuvat)
    list(APPEND tulokset Ohje/${kuva})
  endforeach()
  list(TRANSFORM tulokset PREPEND ${kohde}/ OUTPUT_VARIABLE polut)
  set(lahteet ${sivut} ${kuvat})
  list(TRANSFORM lahteet PREPEND ${lahde}/)
  add_custom_command(
    OUTPUT ${polut}
    COMMAND ${Python3_EXECUTABLE} ${rakentaja} ${lahde} ${kohde}
    DEPENDS ${rakentaja} ${lahteet}
    COMMENT "Rakennetaan käyttöopas"
    VERBATIM)
  set(TEHDASTIEDOSTOT ${TEHDASTIEDOSTOT} ${tulokset} PARENT_SCOPE)
endfunction()
