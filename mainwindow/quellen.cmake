feldkranz_quellen(modell mainwindow/dateihinweis.cpp mainwindow/schaltflaechen.cpp)
feldkranz_quellen(fenster
  mainwindow/ablage.cpp
  mainwindow/befehle.cpp
  mainwindow/extras.cpp
  mainwindow/flaggen.cpp
  mainwindow/formularbefehle.cpp
  mainwindow/formulargroesse.cpp
  mainwindow/fortschrittsbalken.cpp
  mainwindow/frmMDI.cpp mainwindow/frmMDI.h
  mainwindow/frmStart.cpp mainwindow/frmStart.h
  mainwindow/hauptfensterdienste.cpp
  mainwindow/hilfepanel.cpp mainwindow/hilfepanel.h
  mainwindow/listenfalte.cpp
  mainwindow/mehrmenue.cpp
  mainwindow/menueleiste.cpp
  mainwindow/programmende.cpp
  mainwindow/spezialraster.cpp
  mainwindow/stationen.cpp
  mainwindow/testbefehle.cpp
  mainwindow/werkzeugleisten.cpp)
