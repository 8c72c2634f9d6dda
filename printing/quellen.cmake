feldkranz_quellen(modell printing/druckdaten.cpp printing/druckgeometrie.cpp printing/feldlayout.cpp printing/feldwert.cpp printing/pdfpfad.cpp printing/pdftitel.cpp printing/seitenlayout.cpp printing/testseite.cpp printing/zeichnung.cpp printing/zeilenumbruch.cpp)
feldkranz_quellen(rand printing/blattplatz.cpp printing/druckannahme.cpp printing/drucker.cpp printing/druckschrift.cpp printing/druckseite.cpp printing/pdfdatei.cpp printing/zeichnungmalen.cpp)
feldkranz_quellen(fenster printing/druckauftrag.cpp printing/druckerwahl.cpp printing/formulardrucken.cpp printing/testdrucken.cpp)
