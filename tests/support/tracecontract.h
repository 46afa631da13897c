// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRegularExpression>

/** What each function writes into the log, as tests/trace-contract tells. */
class TraceContract {
public:
    /** "%s" in the contract stands for one of these values, plain or as the debug stream quotes it. */
    TraceContract(const QString &file, const QStringList &values);
    /** What is left of a log without its functions: nothing when it keeps to the contract. */
    QString violations(QString log) const;

private:
    QList<QPair<QString, QRegularExpression>> m_functions; // the token "<NAME>" and what it stands for,
                                                           // with an empty pair before the last resorts
};
