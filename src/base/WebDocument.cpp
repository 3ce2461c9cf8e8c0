#include "base/WebDocument.h"

#include "base/WebText.h"

#include <QCryptographicHash>

namespace talvesk::web {
namespace {

/// What a policy calls a script by.
QByteArray hashOf(const QByteArray& script) {
  return "'sha256-" + QCryptographicHash::hash(script, QCryptographicHash::Sha256).toBase64() + "'";
}

QByteArray policyOf(const Document& document) {
  QByteArray scripts;
  for (const QByteArray& script : document.scripts) scripts += " " + hashOf(script);
  // Scripts set styles on what they draw, which no hash can name; a style can load nothing.
  return "default-src 'none'; script-src" + scripts +
         "; style-src 'unsafe-inline'; img-src data: blob:; base-uri 'none'; form-action 'none'";
}

QByteArray headOf(const Document& document) {
  QByteArray head = "<!DOCTYPE html>\n<html lang=\"" + document.language.toUtf8() +
                    "\">\n<head>\n<meta charset=\"utf-8\">\n"
                    "<meta http-equiv=\"Content-Security-Policy\" content=\"" +
                    policyOf(document) +
                    "\">\n<meta name=\"viewport\" content=\"width=device-width, "
                    "initial-scale=1\">\n<meta name=\"generator\" content=\"Talvesk\">\n";
  if (!document.author.isEmpty()) {
    head += "<meta name=\"author\" content=\"" + escaped(document.author).toUtf8() + "\">\n";
  }
  return head + "<title>" + escaped(document.title).toUtf8() + "</title>\n<style>\n" +
         document.style + "</style>\n</head>\n";
}

}  // namespace

QByteArray documentBytes(const Document& document) {
  QByteArray bytes = headOf(document) + "<body class=\"" + document.bodyClass +
                     "\">\n<a class=\"skip\" href=\"#content\">" + escaped(document.skip).toUtf8() +
                     "</a>\n" + document.body;
  if (!document.data.isEmpty()) {
    bytes += "<script type=\"application/json\" id=\"data\">" + scriptSafe(document.data) +
             "</script>\n";
  }
  for (const QByteArray& script : document.scripts) bytes += "<script>" + script + "</script>\n";
  return bytes + "</body>\n</html>\n";
}

}  // namespace talvesk::web
