feldkranz_quellen(modell start/aufruf.cpp start/lieferung.cpp)
feldkranz_quellen(rand start/einrichtung.cpp start/empfang.cpp start/startorte.cpp)
feldkranz_quellen(fenster
  start/dateiwunsch.cpp
  start/einrichtungsbalken.cpp start/einrichtungsbalken.h)
target_link_libraries(rand PRIVATE Qt6::Network)
