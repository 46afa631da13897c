// SPDX-License-Identifier: GPL-3.0-or-later
// The audio test with a real PulseAudio, whose sinks and sources bear the names of a headset's.
#include "app/paths.h"
#include "dialogs/audiotest.h"
#include "tests/support/hand.h"
#include "tests/support/testbus.h"

#include <BluezQt/Manager>
#include <QComboBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

static const char address[] = "00:1A:7D:10:00:01";

class TestSound : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { m_server.terminate(), m_server.waitForFinished(); }
    void playsOnOneSide();
    void records();

private:
    QTemporaryDir m_folder;
    QProcess m_server;
    BluezQt::Manager m_manager; // knows no device, which is enough

    QString path(const char *name) const { return m_folder.filePath(name); }
    void setProfile(const QByteArray &name) const;
};

static QByteArray run(const QString &line)
{
    QProcess process;
    process.start("sh", { "-c", line });
    process.waitForFinished();
    return process.readAllStandardOutput();
}

/** The loudest of every second value of 16 bits. */
static int loudest(const QByteArray &samples, int first)
{
    int found = 0;
    for (int i = 2 * first; i + 1 < samples.size(); i += 4)
        found = qMax(found, qAbs(int(qFromLittleEndian<qint16>(samples.constData() + i))));
    return found;
}

/** There is no card without the headset: this one is made up, everything else of "pactl" is real. */
void TestSound::setProfile(const QByteArray &name) const
{
    put(path("cards"), "Card #0\n\tName: bluez_card.00_1A_7D_10_00_01\n\tProfiles:\n"
                       "\t\ta2dp_sink: Play (sinks: 1, sources: 0)\n"
                       "\t\thandsfree_head_unit: Talk (sinks: 1, sources: 1)\n\tActive Profile: "
                           + name + "\n");
}

void TestSound::initTestCase()
{
    const std::pair<const char *, QByteArray> tools[] = {
        { "ps", "exit" }, // the server is PulseAudio, whatever else runs
        { "pactl", "[ \"$*\" = \"list cards\" ] && exec cat \"$HOME/cards\"" },
        { "amixer", "" },
        // The program deletes an old sample right after the recorder's start; the real one may open it
        // sooner.
        { "parecord", "echo $$ >\"$HOME/recorder\"; sleep 0.5" },
        // Other people's recorders go on.
        { "killall", "echo \"$@\" >\"$HOME/killed\"; read pid <\"$HOME/recorder\"; kill $pid; exit" },
    };
    for (const auto &[name, line] : tools) {
        const QString real = QStandardPaths::findExecutable(name, { "/usr/local/bin", "/usr/bin", "/bin" });
        const QString file = path("bin/") + name;
        put(file, "#!/bin/sh\n" + line + "\nexec " + real.toUtf8() + " \"$@\"\n");
        QVERIFY(QFile::setPermissions(file, QFile::ReadOwner | QFile::ExeOwner));
    }
    const QByteArray socket = path("native").toUtf8();
    for (const char *home : { "HOME", "XDG_RUNTIME_DIR" })
        qputenv(home, m_folder.path().toUtf8());
    qputenv("PULSE_SERVER", "unix:" + socket);
    qputenv("LC_ALL", "C.UTF-8");
    qputenv("PATH", path("bin").toUtf8() + ':' + qgetenv("PATH"));

    const QString node = "%1_name=bluez_%2.00_1A_7D_10_00_01.%3";
    const QString sink = "-Lmodule-null-sink " + node.arg("sink", "sink");
    m_server.start("pulseaudio",
                   { "-n", "--daemonize=no", "--exit-idle-time=-1", "--use-pid-file=no", "--disable-shm=yes",
                     "-Lmodule-native-protocol-unix auth-anonymous=1 socket=" + socket, sink.arg("a2dp_sink"),
                     sink.arg("handsfree_head_unit channels=1"),
                     "-Lmodule-sine-source " + node.arg("source", "source", "handsfree_head_unit") });
    TRY(run("pactl list sources short").contains("module-sine-source"));
    run("pactl set-default-sink bluez_sink.00_1A_7D_10_00_01.a2dp_sink");
}

void TestSound::playsOnOneSide()
{
    setProfile("a2dp_sink");
    audiotest dialog(&m_manager, address, nullptr);
    QVERIFY(dialog.findChild<QWidget *>("monobt")->isHidden());
    const QByteArray samples = run("pactl list samples short");
    for (const char *name : { "\tleft\t", "\tright\t", "\tcenter\t" })
        QVERIFY2(samples.contains(name), samples);

    QProcess listener;
    listener.start("pacat", { "--record", "--channels=2", "--format=s16le", "--latency-msec=20",
                              "-dbluez_sink.00_1A_7D_10_00_01.a2dp_sink.monitor" });
    QVERIFY(listener.waitForReadyRead());
    listener.readAll();
    dialog.findChild<QPushButton *>("rightbt")->click();
    QByteArray heard; // both sides sound again once the balance is back
    TRY((heard += listener.readAll(), loudest(heard, 1) > 1000));
    QCOMPARE(loudest(heard, 0), 0);
    TRY(run("pactl get-sink-volume @DEFAULT_SINK@").count("100%") == 2);
    listener.terminate();
    listener.waitForFinished();
}

void TestSound::records()
{
    setProfile("handsfree_head_unit");
    audiotest dialog(&m_manager, address, nullptr);
    dialog.show();
    QVERIFY(!dialog.findChild<QWidget *>("monobt")->isHidden());
    Hand hand;
    hand.does("press record");
    QVERIFY(dialog.findChild<QWidget *>("play")->isEnabled());
    QCOMPARE(contentOf(path("killed")), QByteArray("parecord\n"));
    TRY(loudest(contentOf(paths::audioSample).mid(44), 0) > 1000);
}

QTEST_MAIN(TestSound)
#include "tst_sound.moc"
