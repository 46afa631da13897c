// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/language.h"

#include <QCoreApplication>
#include <QFile>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

static const QLatin1String s_folder(":/translations");

/** Whether a locale other than "C" is set: without one LANGUAGE is ignored, as gettext does. */
static bool localeIsSet()
{
    for (const char *variable : { "LC_ALL", "LC_MESSAGES", "LANG" }) {
        const QByteArray locale = qgetenv(variable);
        if (!locale.isEmpty())
            return locale != "C" && locale != "POSIX" && !locale.startsWith("C.");
    }
    return false;
}

/** The name that the catalogue for this language has, if there is one. */
static QString catalogueName(const QString &tag)
{
    QString language = tag.section(QLatin1Char('-'), 0, 0);
    // Brazilian Portuguese is closer to European Portuguese than English is.
    if (language == QLatin1String("pt"))
        return QStringLiteral("pt_BR");
    if (language == QLatin1String("zh"))
        return QStringLiteral("zh_CN");
    return language;
}

/** The script of a Chinese tag; for a bare "zh", and for other languages, any. */
static QLocale::Script chineseScript(const QString &tag)
{
    return tag.startsWith(QLatin1String("zh-")) ? QLocale(tag).script() : QLocale::AnyScript;
}

QString catalogueFor(const QStringList &languages)
{
    // Qt also lists "C" behind a language that it does not know; only a leading one means English.
    if (languages.value(0) == QLatin1String("C"))
        return {};
    bool readsTraditional = false;
    for (const QString &tag : languages) {
        QString name = catalogueName(tag);
        if (name == QLatin1String("en"))
            return {};
        // Qt appends "zh" to the tags of either script, and "zh-CN" to "zh".
        const QLocale::Script script = chineseScript(tag);
        readsTraditional |= script == QLocale::TraditionalHanScript;
        if (name == QLatin1String("zh_CN") && (readsTraditional || script != QLocale::SimplifiedHanScript))
            continue;
        if (QFile::exists(s_folder + QStringLiteral("/pairdesk_%1.qm").arg(name)))
            return name;
    }
    return {};
}

static void install(const QString &file, const QString &folder)
{
    auto *translator = new QTranslator(QCoreApplication::instance());
    if (translator->load(file, folder))
        QCoreApplication::installTranslator(translator);
}

void installTranslators()
{
    const QString name = localeIsSet() ? catalogueFor(QLocale::system().uiLanguages()) : QString();
    if (name.isEmpty())
        return;
#if QT_VERSION_MAJOR >= 6
    const QString folderOfQt = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
#else
    const QString folderOfQt = QLibraryInfo::location(QLibraryInfo::TranslationsPath);
#endif
    install(QStringLiteral("qtbase_") + name, folderOfQt); // the buttons of message boxes
    install(QStringLiteral("pairdesk_") + name, s_folder);
}
