#include "tooltips/tooltipps.h"

void StilSetzen(clsToolTipDeluxe& objekt, std::string_view titel, const tipp::Stil& stil) {
    objekt.ToolTipBackColor(stil.grund);
    objekt.ToolTipTextColor(stil.schrift);
    objekt.SetToolTipTitle(titel, stil.symbol);
}

void ToolTipTitel(std::string_view titel) {
    if (ToolTip != nullptr) {
        StilSetzen(*ToolTip, titel, tipp::stilStandard);
    }
}

void ToolTipStandard() {
    ToolTipTitel(tipp::titelStandard);
}

void ToolTipHilfe() {
    if (ToolTip != nullptr) {
        StilSetzen(*ToolTip, tipp::titelHilfe, tipp::stilHilfe);
    }
}

void ToolTipSchliessen() {
    if (ToolTip != nullptr) {
        StilSetzen(*ToolTip, tipp::titelSchliessen, tipp::stilSchliessen);
    }
}
