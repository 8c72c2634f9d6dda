// The plug-in feldkranz_pdf: shows PDF files, with the toolkit's library for them.
#pragma once

#include "periphery/dokumentansicht.h"

#include <QObject>

class Pdfzusatz : public QObject, public Dokumentzusatz {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "feldkranz.Dokumentzusatz/1")
    Q_INTERFACES(Dokumentzusatz)

public:
    Dokumentansicht* Bauen(QWidget* eltern) override;
};
