feldkranz_quellen(modell periphery/mailadresse.cpp periphery/netzadresse.cpp)
feldkranz_quellen(rand periphery/dateivorhanden.cpp periphery/uebergabe.cpp)
feldkranz_quellen(fenster
  periphery/dokumentleser.cpp periphery/dokumentleser.h periphery/dokumentsuche.cpp
  periphery/frmBrowser.cpp periphery/frmBrowser.h
  periphery/frmHomepage.cpp periphery/frmHomepage.h
  periphery/mail.cpp periphery/spielregel.cpp periphery/tray.cpp periphery/zusatz.cpp)

# The plug-ins. Each links one large library of the toolkit, and the program does without where that is missing.
option(FELDKRANZ_PDF "Build the plug-in that shows the rule document" ON)
option(FELDKRANZ_WEB "Build the plug-in that shows the homepage" ON)
if(FELDKRANZ_PDF)
  find_package(Qt6Pdf 6.4 QUIET)
endif()
if(FELDKRANZ_WEB)
  find_package(Qt6WebEngineWidgets 6.4 QUIET)
endif()
if(TARGET Qt6::Pdf)
  feldkranz_zusatz(feldkranz_pdf
    periphery/pdfzusatz.cpp periphery/seitenansicht.cpp periphery/seitenlage.cpp
    periphery/seitensuche.cpp)
  target_link_libraries(feldkranz_pdf PRIVATE Qt6::Widgets Qt6::Pdf)
else()
  message(STATUS "Without Qt PDF: the rule document's window stays empty")
endif()
if(TARGET Qt6::WebEngineWidgets)
  feldkranz_zusatz(feldkranz_web periphery/webansicht.cpp periphery/webseite.cpp)
  target_link_libraries(feldkranz_web PRIVATE Qt6::WebEngineWidgets)
else()
  message(STATUS "Without Qt WebEngine: the homepage's window stays empty")
endif()
