# lumi_ohje(<folder> <target folder> <page.md>): the user's guide, made from the Markdown of a folder and one page that is
# made itself. Appends to TEHDASTIEDOSTOT of the caller the files that it consists of.
function(lumi_ohje lahde kohde lisasivu)
  set(rakentaja ${CMAKE_SOURCE_DIR}/data/rakenna_ohje.py)
  file(GLOB sivut RELATIVE ${lahde} CONFIGURE_DEPENDS ${lahde}/*.md)
  file(GLOB kuvat RELATIVE ${lahde} CONFIGURE_DEPENDS ${lahde}/kuvat/*.png)
  set(tulokset "Lumivirta 2.hlp" Ohje/tyyli.css)
  get_filename_component(lisanimi ${lisasivu} NAME)
  foreach(sivu IN LISTS sivut lisanimi)
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
    COMMAND ${Python3_EXECUTABLE} ${rakentaja} ${lahde} ${kohde} ${lisasivu}
    DEPENDS ${rakentaja} ${lahteet} ${lisasivu}
    COMMENT "Rakennetaan käyttöopas"
    VERBATIM)
  set(TEHDASTIEDOSTOT ${TEHDASTIEDOSTOT} ${tulokset} PARENT_SCOPE)
endfunction()
