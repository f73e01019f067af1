# The structure library server RakKirjSrv and the program's link to it. Included from the root after the layer uiqt.
find_package(Qt6 REQUIRED COMPONENTS Network RemoteObjects)

set(rajapinta "${CMAKE_SOURCE_DIR}/ui/qt/Rakennekirjastopalvelu.rep")

# lumi_etaolio(<target> <replica|source>): the generated half of the interface; its own code isn't held to our warnings.
function(lumi_etaolio kohde puoli)
  if(puoli STREQUAL "replica")
    qt6_add_repc_replicas(${kohde} "${rajapinta}")
  else()
    qt6_add_repc_sources(${kohde} "${rajapinta}")
  endif()
  target_include_directories(${kohde} SYSTEM PUBLIC "${CMAKE_BINARY_DIR}")
  target_link_libraries(${kohde} PUBLIC Qt6::Network Qt6::RemoteObjects)
endfunction()

target_link_libraries(uiqt PUBLIC library)
lumi_etaolio(uiqt replica)

lumi_kerros(kirjastopalvelin QT KANSIOT library/server LINKIT uiqt library)
lumi_etaolio(kirjastopalvelin source)
lumi_ohjelma(RakKirjSrv QT LAHDE library/server/main.cpp LINKIT kirjastopalvelin)

lumi_testi(palvelin_test QT DIALOGIT KANSIOT palvelin LINKIT kirjastopalvelin)
add_dependencies(palvelin_test RakKirjSrv)
set_property(TARGET palvelin_test PROPERTY RUNTIME_OUTPUT_DIRECTORY "${LUMIVIRTA_KOTI}")  # beside the server
