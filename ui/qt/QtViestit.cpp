// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/QtViestit.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QLibraryInfo>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTranslator>
#include <QUrl>
#include <algorithm>
#include <array>
#include <utility>

#include "kernel/Asetusvarasto.h"
#include "ui/Komento.h"
#include "ui/Tekstivarasto.h"
#include "ui/qt/Osoitin.h"

namespace {

constexpr const char *kOsio = "Settings", *kKansio = "Tiedostokansio";  // of the settings store

QString Q(std::string_view teksti) { return QString::fromUtf8(teksti.data(), static_cast<qsizetype>(teksti.size())); }

/// A button of a message box. The captions stand here, since a message must be readable also when the text store, where
/// all other texts are, is missing.
struct Nappi {
  Vastaus vastaus;
  const char* otsikko;
  const char* tallennuskysymyksessa;
  QMessageBox::ButtonRole rooli;
};
constexpr std::array kNapit{
    Nappi{Vastaus::Ok, "OK", "OK", QMessageBox::AcceptRole},
    Nappi{Vastaus::Kylla, "&Kyllä", "&Tallenna", QMessageBox::YesRole},
    Nappi{Vastaus::Ei, "&Ei", "&Hylkää", QMessageBox::NoRole},
    Nappi{Vastaus::Peruuta, "Peruuta", "Peruuta", QMessageBox::RejectRole},
};

bool OnTallennuskysymys(Napit napit) { return napit == Napit::TallennaHylkaa || napit == Napit::TallennaHylkaaPeruuta; }

QMessageBox::Icon Kuvake(Vakavuus vakavuus) {
  switch (vakavuus) {
    case Vakavuus::Varoitus:
      return QMessageBox::Warning;
    case Vakavuus::Virhe:
      return QMessageBox::Critical;
    case Vakavuus::Kysymys:
      return QMessageBox::Question;
    default:
      return QMessageBox::Information;
  }
}

/// What closing the box means.
Vastaus Sulkeminen(Napit napit) {
  if (napit == Napit::Ok) return Vastaus::Ok;
  return OnVastaus(napit, Vastaus::Peruuta) ? Vastaus::Peruuta : Vastaus::Ei;
}

Vastaus NaytaLaatikko(const Viesti& viesti) {
  const NormaaliOsoitin osoitin;
  QMessageBox laatikko(Kuvake(viesti.vakavuus), Q(viesti.otsikko), Q(viesti.teksti), QMessageBox::NoButton,
                       QApplication::activeWindow());
  laatikko.setTextFormat(Qt::PlainText);
  laatikko.setDetailedText(Q(viesti.tarkenne));
  std::array<QPushButton*, kNapit.size()> napit{};
  for (std::size_t i = 0; i < kNapit.size(); ++i) {
    const Nappi& nappi = kNapit[i];
    if (!OnVastaus(viesti.napit, nappi.vastaus)) continue;
    const char* otsikko = OnTallennuskysymys(viesti.napit) ? nappi.tallennuskysymyksessa : nappi.otsikko;
    napit[i] = laatikko.addButton(QString::fromUtf8(otsikko), nappi.rooli);
    if (nappi.vastaus == viesti.oletus) laatikko.setDefaultButton(napit[i]);
    if (nappi.vastaus == Sulkeminen(viesti.napit)) laatikko.setEscapeButton(napit[i]);
  }
  laatikko.exec();
  const auto painettu = std::ranges::find(napit, laatikko.clickedButton());
  return painettu == napit.end() ? Sulkeminen(viesti.napit)
                                 : kNapit[static_cast<std::size_t>(painettu - napit.begin())].vastaus;
}

/// "*.lvt" becomes "*.[lL][vV][tT]": a file is found whatever the case of its extension.
QString KirjainkoostaRiippumaton(const QString& suodatin) {
  const auto sulku = suodatin.indexOf('(');
  QString tulos = suodatin.left(sulku);
  for (const QChar merkki : suodatin.mid(sulku))
    tulos += merkki.isLetter() ? '[' + QString(merkki.toLower()) + merkki.toUpper() + ']' : QString(merkki);
  return tulos;
}

QString Paate(const QString& suodatin) {
  return QRegularExpression(QStringLiteral(R"(\*\.(\w+))")).match(suodatin).captured(1);
}

/// Where the person chose a file last, else the documents folder.
QString Tiedostokansio() {
  for (const QString& kansio :
       {Q(HaeAsetus(kOsio, kKansio, "")), QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)})
    if (!kansio.isEmpty() && QFileInfo(kansio).isDir()) return kansio;
  return QDir::homePath();
}

/// Remembering is a convenience: a choice isn't lost with it.
void MuistaKansio(const QString& tiedosto) try {
  TallennaAsetus(kOsio, kKansio, QFileInfo(tiedosto).absolutePath().toStdString());
} catch (const std::exception&) {
}

/// Labels that the toolkit's own translation leaves in English.
constexpr std::pair<QFileDialog::DialogLabel, const char*> kTiedostodialoginTekstit[] = {
    {QFileDialog::LookIn, "Kansio:"},
    {QFileDialog::FileName, "Tiedosto:"},
    {QFileDialog::FileType, "Tiedostotyyppi:"},
    {QFileDialog::Reject, "Peruuta"},
};

std::optional<std::string> KysyTiedosto(QFileDialog& dialogi, const QString& suodatin) {
  NaytaOdottavatViestit();
  const NormaaliOsoitin osoitin;
  dialogi.setDirectory(Tiedostokansio());
  dialogi.setNameFilter(KirjainkoostaRiippumaton(suodatin));
  dialogi.setOption(QFileDialog::HideNameFilterDetails);
  for (const auto& [paikka, teksti] : kTiedostodialoginTekstit) dialogi.setLabelText(paikka, QString::fromUtf8(teksti));
  if (dialogi.exec() != QDialog::Accepted || dialogi.selectedFiles().isEmpty()) return std::nullopt;
  const QString valittu = dialogi.selectedFiles().constFirst();
  MuistaKansio(valittu);
  return valittu.toStdString();
}

}  // namespace

QtViestit::QtViestit() {
  AsetaViestit(this);
  AsetaViestienNaytto([this] { NaytaOdottavat(); });
}

QtViestit::~QtViestit() {
  AsetaViestienNaytto(nullptr);
  AsetaViestit(nullptr);
}

void QtViestit::AsetaPaneelinNaytto(std::function<void(const std::string&)> nayta) { naytaPaneeli_ = std::move(nayta); }

Vastaus QtViestit::Nayta(const Viesti& viesti) {
  if (viesti.napit == Napit::Ok && KomentoKaynnissa()) {
    LisaaKoosteisiin(odottavat_, viesti);
    return Vastaus::Ok;
  }
  NaytaOdottavat();
  return NaytaLaatikko(Viestikooste(viesti).Koottu());
}

void QtViestit::NaytaOdottavat() {
  for (const Viestikooste& kooste : std::exchange(odottavat_, {})) NaytaLaatikko(kooste.Koottu());
}

std::optional<std::string> QtViestit::KysyTeksti(std::string_view kehote, std::string_view otsikko,
                                                 std::string_view oletus) {
  NaytaOdottavat();
  const NormaaliOsoitin osoitin;
  QInputDialog dialogi(QApplication::activeWindow());
  dialogi.setWindowTitle(Q(otsikko));
  dialogi.setLabelText(Q(kehote));
  dialogi.setTextValue(Q(oletus));
  dialogi.setOkButtonText(QStringLiteral("OK"));
  dialogi.setCancelButtonText(QStringLiteral("Peruuta"));
  if (dialogi.exec() != QDialog::Accepted) return std::nullopt;
  return dialogi.textValue().toStdString();
}

std::optional<std::string> QtViestit::KysyAvattavaTiedosto(std::string_view otsikko, std::string_view suodatin) {
  QFileDialog dialogi(QApplication::activeWindow(), Q(otsikko));
  dialogi.setFileMode(QFileDialog::ExistingFile);
  dialogi.setLabelText(QFileDialog::Accept, QStringLiteral("Avaa"));
  return KysyTiedosto(dialogi, Q(suodatin));
}

std::optional<std::string> QtViestit::KysyTallennettavaTiedosto(std::string_view otsikko, std::string_view suodatin,
                                                                std::string_view ehdotus) {
  QFileDialog dialogi(QApplication::activeWindow(), Q(otsikko));
  dialogi.setAcceptMode(QFileDialog::AcceptSave);
  dialogi.setOption(QFileDialog::DontConfirmOverwrite);  // the program asks in its own words
  dialogi.setDefaultSuffix(Paate(Q(suodatin)));
  dialogi.setLabelText(QFileDialog::Accept, QStringLiteral("Tallenna"));
  dialogi.selectFile(Q(ehdotus));
  return KysyTiedosto(dialogi, Q(suodatin));
}

bool QtViestit::AvaaTiedosto(const std::string& tiedosto) {
  return QDesktopServices::openUrl(QUrl::fromLocalFile(QString::fromStdString(tiedosto)));
}

void QtViestit::AsetaPaneeli(std::string teksti) {
  paneeli_ = std::move(teksti);
  if (naytaPaneeli_) naytaPaneeli_(paneeli_);
}

void QtViestit::Odotusosoitin(bool paalla) {
  if (paalla)
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  else
    QGuiApplication::restoreOverrideCursor();
}

void QtViestit::AnnaPiirtaa() { QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents); }

void AsennaSuomennos() {
  QLocale::setDefault(QLocale(QLocale::Finnish, QLocale::Finland));
  static QTranslator kaantaja;
  if (kaantaja.load(QStringLiteral("qtbase_fi"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    QCoreApplication::installTranslator(&kaantaja);
}
