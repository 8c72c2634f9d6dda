feldkranz_quellen(modell
  sheets/antwortbogen.cpp
  sheets/blaetter.cpp
  sheets/blattart.cpp
  sheets/blatthinweis.cpp
  sheets/blattsatz.cpp
  sheets/karten.cpp
  sheets/spielbrett.cpp
  sheets/textfluss.cpp
  sheets/textsatz.cpp)
feldkranz_quellen(fenster
  sheets/blattausgabe.cpp
  sheets/frmVorschau.cpp sheets/frmVorschau.h
  sheets/frmVorschauBau.cpp
  sheets/vorschau.cpp
  sheets/vorschaumaler.cpp)
