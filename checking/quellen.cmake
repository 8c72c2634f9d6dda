feldkranz_quellen(modell
  checking/anfuehrungen.cpp
  checking/befund.cpp
  checking/fragenpruefung.cpp
  checking/papierpruefung.cpp
  checking/pruefung.cpp
  checking/pruefzeile.cpp)
