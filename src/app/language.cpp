// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/language.h"

#include <QCoreApplication>
#include <QFile>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

static const QLatin1String s_folder(":/translations");

/** Whether there is a locale at all: without one, as with "C", LANGUAGE is no wish. */
static bool localeIsSet()
{
    for (const char *variable : { "LC_ALL", "LC_MESSAGES", "LANG" }) {
        const QByteArray locale = qgetenv(variable);
        if (!locale.isEmpty())
            return locale != "C" && locale != "POSIX" && !locale.startsWith("C.");
    }
    return false;
}

/** The name of the catalogue for one language, whether there is such a file or not. */
static QString catalogueName(const QString &tag)
{
    QString language = tag.section(QLatin1Char('-'), 0, 0);
    // Readers in Portugal and Africa follow Brazilian words more easily than English ones.
    if (language == QLatin1String("pt"))
        return QStringLiteral("pt_BR");
    // Traditional characters are not for everybody's eyes, nor are simplified ones. What "zh" alone means is
    // unknown: it may be the rest of either.
    if (language == QLatin1String("zh")) {
        const bool simplified = tag != language && QLocale(tag).script() == QLocale::SimplifiedHanScript;
        return simplified ? QStringLiteral("zh_CN") : QString();
    }
    return language;
}

QString catalogueFor(const QStringList &languages)
{
    for (const QString &tag : languages) {
        QString name = catalogueName(tag);
        if (name == QLatin1String("en") || name == QLatin1String("C"))
            return {};
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

void speakUsersLanguage()
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
