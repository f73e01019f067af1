// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/QtOhjain.h"

#include <QAbstractButton>
#include <QApplication>
#include <QBoxLayout>
#include <QEvent>
#include <QFocusEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QTabWidget>
#include <QTreeView>
#include <utility>

#include "kernel/Kirjainkoko.h"
#include "ui/qt/Kaaviokuva.h"
#include "ui/qt/Kuvapinta.h"
#include "ui/qt/QtComboBox.h"
#include "ui/qt/QtIkkuna.h"
#include "ui/qt/QtListView.h"

namespace {

constexpr double kTwipseja = 15;  // in a pixel
constexpr int kLuvunLeveys = 14;  // of a number field, in digits
constexpr int kAjanLeveys = 8;    // of a field for a time of day

QString Q(const std::string& teksti) { return QString::fromStdString(teksti); }

std::string Ominaisuus(const QObject& olio, const char* nimi) { return olio.property(nimi).toString().toStdString(); }

/// The caption with its letter marked; an ampersand of the text itself stays visible.
QString Merkitty(QString otsikko, QChar kirjain) {
  otsikko.replace('&', QStringLiteral("&&"));
  const auto paikka = kirjain.isNull() ? -1 : otsikko.indexOf(kirjain, 0, Qt::CaseInsensitive);
  return paikka < 0 ? otsikko : otsikko.insert(paikka, '&');
}

/// A control with a caption: label, button, frame.
template <class W, void (W::*Aseta)(const QString&)>
class QtOtsikko : public QtOhjain {
 public:
  QtOtsikko(Lomakeikkuna& ikkuna, Ohjainkuvaus kuvaus, W& widget)
      : QtOhjain(ikkuna, std::move(kuvaus), &widget), widget_(widget) {}

  void AsetaPikakirjain(QChar kirjain) override {
    kirjain_ = kirjain;
    (widget_.*Aseta)(Merkitty(Q(Teksti()), kirjain_));
  }

 protected:
  void NaytaPiirre(Piirre piirre) override {
    if (piirre == Piirre::Teksti) AsetaPikakirjain(kirjain_);
  }

 private:
  W& widget_;
  QChar kirjain_;
};

using QtLabel = QtOtsikko<QLabel, &QLabel::setText>;
using QtFrame = QtOtsikko<QGroupBox, &QGroupBox::setTitle>;
using QtPainike = QtOtsikko<QAbstractButton, &QAbstractButton::setText>;

class QtCommandButton : public QtPainike {
 public:
  QtCommandButton(Lomakeikkuna& ikkuna, Ohjainkuvaus kuvaus, QPushButton& nappi)
      : QtPainike(ikkuna, std::move(kuvaus), nappi) {
    nappi.setAutoDefault(true);
    // A click on Cancel doesn't take the focus: the field that is being edited isn't asked about what it holds.
    if (SamaNimi(Nimi(), "cmdPeruuta")) nappi.setFocusPolicy(Qt::TabFocus);
    connect(&nappi, &QPushButton::clicked, this, [this] { KayttajaPainaa(); });
  }
};

/// Check box or option button.
class QtValintanappi : public QtPainike {
 public:
  QtValintanappi(Lomakeikkuna& ikkuna, Ohjainkuvaus kuvaus, QAbstractButton& nappi)
      : QtPainike(ikkuna, std::move(kuvaus), nappi), nappi_(nappi) {
    connect(&nappi, &QAbstractButton::toggled, this, [this](bool valittu) {
      const bool muunTakia = Tyyppi() == Ohjaintyyppi::OptionButton && !valittu;
      if (valittu != Valittu() && !muunTakia) KayttajaPainaa();
    });
  }

 protected:
  void NaytaPiirre(Piirre piirre) override {
    QtPainike::NaytaPiirre(piirre);
    if (piirre == Piirre::Valittu) NaytaValittu();
  }

 private:
  void NaytaValittu() {
    const QSignalBlocker esto(nappi_);
    const bool poissulkeva = nappi_.autoExclusive();
    nappi_.setAutoExclusive(poissulkeva && Valittu());  // else the last checked one of a group can't be cleared
    nappi_.setChecked(Valittu());
    nappi_.setAutoExclusive(poissulkeva);
  }

  QAbstractButton& nappi_;
};

class QtTextBox : public QtOhjain {
 public:
  QtTextBox(Lomakeikkuna& ikkuna, Ohjainkuvaus kuvaus, QLineEdit& kentta)
      : QtOhjain(ikkuna, std::move(kuvaus), &kentta), kentta_(kentta) {
    Ulkoasu();
    NaytaLukitus();
    connect(&kentta, &QLineEdit::textEdited, this,
            [this](const QString& teksti) { KayttajaKirjoittaa(teksti.toStdString()); });
    kentta.installEventFilter(this);
  }

  bool eventFilter(QObject* kohde, QEvent* tapahtuma) override {
    if (tapahtuma->type() == QEvent::FocusOut && PoistuttuKentasta(static_cast<QFocusEvent*>(tapahtuma)->reason()) &&
        !Poistuttiin())
      return true;
    if (tapahtuma->type() == QEvent::PaletteChange) Varita();
    return QtOhjain::eventFilter(kohde, tapahtuma);
  }

 protected:
  void NaytaPiirre(Piirre piirre) override {
    if (piirre == Piirre::Tekstivalinta) kentta_.selectAll();
    if (piirre == Piirre::Korostus) Varita();
    if (piirre == Piirre::Lukittu) NaytaLukitus();
    if (piirre != Piirre::Teksti) return;
    kentta_.setText(Q(Teksti()));
    kentta_.setCursorPosition(0);
  }

 private:
  /// Tells the listener that the person has left the field. False when the listener has brought the person back: then
  /// the field isn't left, and keeps what was selected in it. A field that loses the focus to one that was left so
  /// isn't left by the person: two faulty ones would else send the focus to and fro.
  bool Poistuttiin() {
    if (poistuttava_ == kentta_.window()) return true;
    const QScopedValueRollback<const QWidget*> poistuttava(poistuttava_, kentta_.window());
    KayttajaPoistuu();
    return kentta_.window()->focusWidget() != &kentta_;
  }
  /// A message box or a menu doesn't end the editing.
  static bool PoistuttuKentasta(Qt::FocusReason syy) {
    return syy != Qt::ActiveWindowFocusReason && syy != Qt::PopupFocusReason && syy != Qt::MenuBarFocusReason;
  }

  void Ulkoasu() {
    const QString tyyppi = Q(Tag()).section(',', 1, 1).toLower();
    if (Lukittu() || tyyppi == QLatin1String("n"))
      RajaaLeveys(kLuvunLeveys, Qt::AlignRight);
    else if (tyyppi == QLatin1String("k"))
      RajaaLeveys(kAjanLeveys, Qt::AlignHCenter);
  }

  /// A locked field is copied from by the mouse; it is no stop of the Tab key.
  void NaytaLukitus() {
    kentta_.setReadOnly(Lukittu());
    kentta_.setFocusPolicy(Lukittu() ? Qt::ClickFocus : Qt::StrongFocus);
    if (!Lukittu()) kentta_.setPalette(QPalette());
    Varita();
  }

  /// In the colours of the present theme: the ground of the window instead of that of fields where the person can't
  /// write, and the blue of links for what is to catch the eye.
  void Varita() {
    if (!Lukittu()) return;
    QPalette varit = kentta_.palette();
    const QColor pohja = varit.color(QPalette::Window);
    const QColor teksti = varit.color(Korostettu() ? QPalette::Link : QPalette::WindowText);
    if (varit.color(QPalette::Base) == pohja && varit.color(QPalette::Text) == teksti) return;
    varit.setColor(QPalette::Base, pohja);
    varit.setColor(QPalette::Text, teksti);
    kentta_.setPalette(varit);
  }

  void RajaaLeveys(int numeroita, Qt::Alignment tasaus) {
    kentta_.setAlignment(tasaus);
    kentta_.setFixedWidth(numeroita * QFontMetrics(QApplication::font()).horizontalAdvance('0'));
  }

  inline static const QWidget* poistuttava_ = nullptr;  // window of the field that is being left
  QLineEdit& kentta_;
};

/// A field of several lines.
class QtTekstialue : public QtOhjain {
 public:
  QtTekstialue(Lomakeikkuna& ikkuna, Ohjainkuvaus kuvaus, QPlainTextEdit& kentta)
      : QtOhjain(ikkuna, std::move(kuvaus), &kentta), kentta_(kentta) {
    kentta.setTabChangesFocus(true);
    connect(&kentta, &QPlainTextEdit::textChanged, this,
            [this] { KayttajaKirjoittaa(kentta_.toPlainText().toStdString()); });
  }

 protected:
  void NaytaPiirre(Piirre piirre) override {
    if (piirre == Piirre::Tekstivalinta) kentta_.selectAll();
    if (piirre == Piirre::Lukittu) kentta_.setReadOnly(Lukittu());
    if (piirre != Piirre::Teksti) return;
    const QSignalBlocker esto(kentta_);
    kentta_.setPlainText(Q(Teksti()));
  }

 private:
  QPlainTextEdit& kentta_;
};

class QtTabStrip : public QtOhjain {
 public:
  QtTabStrip(Lomakeikkuna& ikkuna, Ohjainkuvaus kuvaus, QTabWidget& sivut)
      : QtOhjain(ikkuna, std::move(kuvaus), &sivut), sivut_(sivut) {
    connect(&sivut, &QTabWidget::currentChanged, this, [this](int indeksi) { KayttajaValitsee(indeksi); });
  }

 protected:
  void NaytaPiirre(Piirre piirre) override {
    const QSignalBlocker esto(sivut_);
    if (piirre == Piirre::Indeksi) sivut_.setCurrentIndex(Indeksi());
    if (piirre == Piirre::Osat) NaytaOtsikot();
  }

 private:
  void NaytaOtsikot() {
    for (int i = 0; i < sivut_.count(); ++i) {
      const Osa& sivu = Osat()[static_cast<std::size_t>(i)];
      sivut_.setTabText(i, Merkitty(Q(sivu.otsikko), {}));
      sivut_.setTabEnabled(i, sivu.kaytossa);
      sivut_.setTabToolTip(i, Q(sivu.vihje));
    }
  }

  QTabWidget& sivut_;
};

class QtMSChart : public QtOhjain {
 public:
  QtMSChart(Lomakeikkuna& ikkuna, Ohjainkuvaus kuvaus, Kaaviokuva& kaavio)
      : QtOhjain(ikkuna, std::move(kuvaus), &kaavio), kaavio_(kaavio) {}

  bool KopioiLeikepoydalle() override {
    kaavio_.KopioiLeikepoydalle();
    return true;
  }
  bool TallennaKuva(const std::string& tiedosto) override { return kaavio_.TallennaKuva(tiedosto); }

 protected:
  void NaytaPiirre(Piirre piirre) override {
    if (piirre == Piirre::Kaavio) kaavio_.AsetaKaavio(Kaavio());
  }

 private:
  Kaaviokuva& kaavio_;
};

class QtImage : public QtOhjain {
 public:
  QtImage(Lomakeikkuna& ikkuna, Ohjainkuvaus kuvaus, Kuvapinta& pinta)
      : QtOhjain(ikkuna, std::move(kuvaus), &pinta), pinta_(pinta) {}

 protected:
  void NaytaPiirre(Piirre piirre) override {
    if (piirre == Piirre::Teksti) pinta_.setAccessibleName(Q(Teksti()));
    if (piirre == Piirre::Kuva) pinta_.AsetaKuva(Q(Kuva()));
  }

 private:
  Kuvapinta& pinta_;
};

/// The innermost layout that holds the widget, or nothing.
QLayout* OmaAsettelu(QLayout* asettelu, const QWidget& widget) {
  if (!asettelu || asettelu->indexOf(&widget) >= 0) return asettelu;
  for (int i = 0; i < asettelu->count(); ++i)
    if (QLayout* loytyi = OmaAsettelu(asettelu->itemAt(i)->layout(), widget)) return loytyi;
  return nullptr;
}

/// Corner of the widget's place in its layout, in its parent's coordinates: that of the cell in a grid, the top of the
/// row in a row of widgets.
QPoint PaikkaAsettelussa(const QWidget& widget) {
  QLayout* asettelu = OmaAsettelu(widget.parentWidget()->layout(), widget);
  if (auto* ruudukko = qobject_cast<QGridLayout*>(asettelu)) {
    int rivi = 0, sarake = 0, riveja = 0, sarakkeita = 0;
    ruudukko->getItemPosition(ruudukko->indexOf(&widget), &rivi, &sarake, &riveja, &sarakkeita);
    return ruudukko->cellRect(rivi, sarake).topLeft();
  }
  if (auto* jono = qobject_cast<QHBoxLayout*>(asettelu)) return {widget.x(), jono->contentsRect().top()};
  return widget.pos();
}

/// The same in the form's coordinates, however it has been scrolled.
QPoint Lomakkeella(const QWidget& widget, const QWidget& juuri) {
  QPoint paikka = PaikkaAsettelussa(widget);
  for (const QWidget* w = widget.parentWidget(); w && w != &juuri; w = w->parentWidget())
    if (!w->parentWidget() || w->parentWidget()->objectName() != QLatin1String("qt_scrollarea_viewport"))
      paikka += w->pos();
  return paikka;
}

std::vector<Osa> LueOsat(QWidget& widget) {
  std::vector<Osa> osat;
  if (auto* sivut = dynamic_cast<QTabWidget*>(&widget))
    for (int i = 0; i < sivut->count(); ++i)
      osat.push_back({.otsikko = {},
                      .tag = Ominaisuus(*sivut->widget(i), "Tag"),
                      .vihjetag = Ominaisuus(*sivut->widget(i), "ToolTipText"),
                      .nimi = sivut->widget(i)->objectName().toStdString()});
  for (const QString& sarake : widget.property("Sarakkeet").toStringList())
    osat.push_back(Sarakkeeksi(sarake.toStdString()));
  return osat;
}

Ohjainkuvaus LueKuvaus(QWidget& widget, Ohjaintyyppi tyyppi) {
  Ohjainkuvaus k;
  k.nimi = widget.objectName().toStdString();
  k.tyyppi = tyyppi;
  k.tag = Ominaisuus(widget, "Tag");
  k.vihjetag = Ominaisuus(widget, "ToolTipText");
  k.teksti = Ominaisuus(widget, tyyppi == Ohjaintyyppi::Frame ? "title" : "text");
  k.sailio = widget.parentWidget()->objectName().toStdString();
  if (const auto* otsikko = dynamic_cast<QLabel*>(&widget); otsikko && otsikko->buddy())
    k.kumppani = otsikko->buddy()->objectName().toStdString();
  k.nimio = Ominaisuus(widget, "Nimio");
  k.lukittu = widget.property("readOnly").toBool();
  k.kaytossa = !widget.testAttribute(Qt::WA_ForceDisabled);
  k.nakyva = !(widget.isHidden() && widget.testAttribute(Qt::WA_WState_ExplicitShowHide));
  k.osat = LueOsat(widget);
  return k;
}

template <class O, class W>
std::unique_ptr<QtOhjain> Tee(Lomakeikkuna& ikkuna, QWidget& widget, Ohjaintyyppi tyyppi) {
  return std::make_unique<O>(ikkuna, LueKuvaus(widget, tyyppi), dynamic_cast<W&>(widget));
}

}  // namespace

QtOhjain::QtOhjain(Lomakeikkuna& ikkuna, Ohjainkuvaus kuvaus, QWidget* widget)
    : Ohjain(ikkuna, std::move(kuvaus)), widget_(widget) {}

void QtOhjain::Paivita(Piirre piirre) {
  if (!widget_) return;
  switch (piirre) {
    case Piirre::Vihje:
      return widget_->setToolTip(Q(Vihje()));
    case Piirre::Kaytossa:
      return widget_->setEnabled(Kaytossa());
    case Piirre::Nakyva:
      return widget_->setVisible(Nakyva());
    case Piirre::Kohdistus:
      return Kohdista();
    default:
      return NaytaPiirre(piirre);
  }
}

Lomakepaikka QtOhjain::Sijainti() const {
  if (!widget_) return {};
  const QPoint kulma = Lomakkeella(*widget_, *static_cast<const QtIkkuna&>(Ikkuna()).Juuri());
  return {.vasen = kulma.x() * kTwipseja, .yla = kulma.y() * kTwipseja};
}

void QtOhjain::Kohdista() {
  for (QWidget* w = widget_; w->parentWidget(); w = w->parentWidget())
    if (auto* sivut = qobject_cast<QTabWidget*>(w->parentWidget()->parentWidget()); sivut && sivut->indexOf(w) >= 0)
      sivut->setCurrentWidget(w);
  widget_->setFocus(Qt::OtherFocusReason);
}

std::unique_ptr<QtOhjain> TeeOhjain(Lomakeikkuna& ikkuna, QWidget& widget) {
  Ohjaintyyppi tyyppi = Ohjaintyyppi::MSChart;
  if (!dynamic_cast<Kaaviokuva*>(&widget) && !TyyppiLuokasta(widget.metaObject()->className(), tyyppi)) return nullptr;
  switch (tyyppi) {
    case Ohjaintyyppi::Label:
      return Tee<QtLabel, QLabel>(ikkuna, widget, tyyppi);
    case Ohjaintyyppi::TextBox:
      if (qobject_cast<QPlainTextEdit*>(&widget)) return Tee<QtTekstialue, QPlainTextEdit>(ikkuna, widget, tyyppi);
      return Tee<QtTextBox, QLineEdit>(ikkuna, widget, tyyppi);
    case Ohjaintyyppi::ComboBox:
      return Tee<QtComboBox, QComboBox>(ikkuna, widget, tyyppi);
    case Ohjaintyyppi::CheckBox:
    case Ohjaintyyppi::OptionButton:
      return Tee<QtValintanappi, QAbstractButton>(ikkuna, widget, tyyppi);
    case Ohjaintyyppi::CommandButton:
      return Tee<QtCommandButton, QPushButton>(ikkuna, widget, tyyppi);
    case Ohjaintyyppi::Frame:
      return Tee<QtFrame, QGroupBox>(ikkuna, widget, tyyppi);
    case Ohjaintyyppi::TabStrip:
      return Tee<QtTabStrip, QTabWidget>(ikkuna, widget, tyyppi);
    case Ohjaintyyppi::ListView:
      return Tee<QtListView, QTreeView>(ikkuna, widget, tyyppi);
    case Ohjaintyyppi::MSChart:
      return Tee<QtMSChart, Kaaviokuva>(ikkuna, widget, tyyppi);
    case Ohjaintyyppi::Image:
      return Tee<QtImage, Kuvapinta>(ikkuna, widget, tyyppi);
  }
  return nullptr;
}
