// SPDX-License-Identifier: MIT
#include "preview/PageScripts.h"

#include "preview/PageAddress.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

// A static library does not register its resources by itself. The macro declares a function, so it must be
// outside any namespace.
static void InitializePreviewResources() {
  Q_INIT_RESOURCE(preview);
}

namespace quorvantis {
namespace {

QString Script(const char* name) {
  InitializePreviewResources();
  QFile file(QStringLiteral(":/preview/scripts/") + name);
  return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

}  // namespace

QWebEngineScript PageScript(const PageScriptSetup& setup) {
  const QJsonObject host{{"style", Script("page.css")},
                         {"flashFolder", OwnAddress("flash/").toString()},
                         {"preparing", setup.preparing},
                         {"cannotShow", setup.cannotShow}};
  const QString values = QString::fromUtf8(QJsonDocument(host).toJson(QJsonDocument::Compact));
  QWebEngineScript script;
  script.setInjectionPoint(QWebEngineScript::DocumentCreation);
  script.setWorldId(
      QWebEngineScript::MainWorld);  // the world of the page's own scripts, which use `window.status`
  script.setRunsOnSubFrames(true);
  script.setSourceCode(Script("status.js") + Script("page.js") + '(' + values + ");" + Script("players.js") +
                       '(' + values + ");");
  return script;
}

QString PrintScript() {
  return Script("print.js");
}

}  // namespace quorvantis
