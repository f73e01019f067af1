// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <exception>
#include <stdexcept>
#include <string>
#include <string_view>

/// The one error that travels up a call chain. Every method of the model that can fail is a function-try-block whose
/// handler raises the error anew under the method's own literal, so that `Lahde` names the outermost method that
/// failed.
class Virhe : public std::runtime_error {
 public:
  /// Numero is 9999 for a raised error; `syy` is the cause, kept for diagnosis only.
  Virhe(int numero, std::string lahde, const std::string& kuvaus, std::exception_ptr syy, std::string syynKuvaus,
        std::string kohde = {});

  int Numero() const noexcept { return numero_; }
  /// Literal of the method that raised last, e.g. "clsTila:LampoHaviot Method".
  const std::string& Lahde() const noexcept { return lahde_; }
  std::string Kuvaus() const { return what(); }
  /// The error that was caught; empty when raised from scratch.
  const std::exception_ptr& Syy() const noexcept { return syy_; }
  /// Text of the first error of the chain: what really went wrong.
  const std::string& SyynKuvaus() const noexcept { return syynKuvaus_; }
  /// Name of the object that could not be calculated, "TK01"; empty when nobody on the way told one.
  const std::string& Kohde() const noexcept { return kohde_; }

 private:
  int numero_;
  std::string lahde_;
  std::exception_ptr syy_;
  std::string syynKuvaus_;
  std::string kohde_;
};

/// Raises error 9999 anew under `lahde`. To be called in a handler: the exception being handled becomes the cause.
[[noreturn]] void NostaVirhe(const char* lahde);
/// Name of the object whose method fails: the innermost one is told to the person.
struct Virheenkohde {
  const std::string& nimi;
};
/// The same, with the name of the object.
[[noreturn]] void NostaVirhe(const char* lahde, Virheenkohde kohde);
/// Raises error 9999 under `lahde` from scratch; `syy` says what went wrong, for diagnosis.
[[noreturn]] void NostaVirhe(const char* lahde, std::string syy);

/// Where the text of error 9999 comes from; the text store hooks itself in when it is loaded.
void AsetaVirhetekstinHaku(std::string (*haku)(int numero));

/// The whole chain for diagnosis, a line each: the literals from the outermost method in, and what the first error
/// says.
std::string Virheketju(const std::exception& virhe);
/// What the first error of a chain says: the cause of a `Virhe`, else the exception's own text.
std::string SyynKuvaus(const std::exception& virhe);
