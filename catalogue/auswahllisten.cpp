#include "catalogue/auswahllisten.h"

#include "core/klappliste.h"
#include "dialogs/meldung.h"

#include <QApplication>
#include <QComboBox>
#include <QListView>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyledItemDelegate>
#include <QTimer>

#include <memory>
#include <new>
#include <stdexcept>
#include <utility>

namespace {

// A list with a scroll bar instead of the style's menu, which measures every entry before it opens.
class Listenstil : public QProxyStyle {
public:
    using QProxyStyle::QProxyStyle;

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* element,
                  QStyleHintReturn* antwort) const override {
        return hint == SH_ComboBox_Popup ? 0 : QProxyStyle::styleHint(hint, option, element, antwort);
    }
};

// Rows as wide as the list, so that a long text ends in an ellipsis.
class Listenzeile : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex& /*stelle*/) const override {
        return {0, option.fontMetrics.height() + 4};
    }
};

void Melden(std::string_view ort, const std::function<void()>& schritte) {
    try {
        schritte();
    } catch (const Laufzeitfehler& fehler) {
        FehlerMelden(ort, fehler);
    } catch (const std::bad_alloc&) {
        FehlerMelden(ort, Laufzeitfehler(Fehler::SpeicherVoll));
    } catch (const std::out_of_range&) {
        FehlerMelden(ort, Laufzeitfehler(Fehler::IndexBereich));
    }
}

} // namespace

QComboBox* AuswahlListe(QWidget* eltern, const QString& name, int klappbreite, QAbstractItemModel* modell) {
    auto* liste = new Klappliste(eltern, name);
    liste->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    liste->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    liste->setMaxVisibleItems(20);
    auto* stil = new Listenstil(QStyleFactory::create(QApplication::style()->name()));
    stil->setParent(liste);
    liste->setStyle(stil);
    auto* ansicht = new QListView(liste);
    ansicht->setUniformItemSizes(true);
    ansicht->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    ansicht->setTextElideMode(Qt::ElideRight);
    ansicht->setMinimumWidth(klappbreite);
    liste->setView(ansicht);
    liste->setItemDelegate(new Listenzeile(liste));
    if (modell != nullptr) {
        liste->setModel(modell);
    }
    return liste;
}

void BeiWahl(QComboBox* liste, std::string_view ort, std::function<void()> schritte) {
    // A new pick comes as a change of the index and once more as an activation, a repeated one only as the
    // latter: an activation straight after a change has been answered already.
    const auto beantwortet = std::make_shared<bool>(false);
    const auto waehlen = [ort, tun = std::move(schritte)] { Melden(ort, tun); };
    QObject::connect(liste, &QComboBox::currentIndexChanged, liste, [=](int index) {
        if (index >= 0) {
            waehlen();
            *beantwortet = true;
            QTimer::singleShot(0, liste, [beantwortet] { *beantwortet = false; });
        }
    });
    QObject::connect(liste, &QComboBox::activated, liste, [=](int index) {
        if (index >= 0 && !std::exchange(*beantwortet, false)) {
            waehlen();
        }
    });
}
