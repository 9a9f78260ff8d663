// Start of the program to its painted main window, against a bare window with twenty buttons; the memory that it holds
// then; and what the decoration costs while nobody plays. Exit status 1 where a limit is passed.
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QThread>
#include <algorithm>
#include <cstdio>
#include <stdexcept>
#include <unistd.h>
#include <vector>

namespace {

constexpr int starts = 11;
constexpr double highest_ratio = 3;
constexpr double most_memory = 60; // MB
constexpr double most_load = 5;    // percent of one core
constexpr int load_seconds = 10;

/// A program that says when it has painted its window, and is ended with this object.
class Started {
 public:
  explicit Started(const QString& program) {
    clock_.start();
    process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process_.start(program, {});
    while (!process_.canReadLine()) {
      if (!process_.waitForReadyRead(30000)) throw std::runtime_error(program.toStdString() + " has painted no window");
    }
    milliseconds_ = static_cast<double>(clock_.nsecsElapsed()) / 1e6;
  }
  Started(const Started&) = delete;
  Started& operator=(const Started&) = delete;
  ~Started() {
    process_.kill();
    process_.waitForFinished();
  }

  double milliseconds() const { return milliseconds_; }

  /// Memory in MB, what is shared with other processes counted by its share.
  double memory() const {
    QFile file(QStringLiteral("/proc/%1/smaps_rollup").arg(process_.processId()));
    if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error("the memory cannot be read");
    for (const QByteArray& line : file.readAll().split('\n')) {
      if (line.startsWith("Pss:")) return line.mid(4).chopped(3).trimmed().toDouble() / 1024;
    }
    throw std::runtime_error("the memory cannot be read");
  }

  /// Processor time used so far, s.
  double processor_time() const {
    QFile file(QStringLiteral("/proc/%1/stat").arg(process_.processId()));
    if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error("the processor time cannot be read");
    const QByteArray all = file.readAll();
    // The fields are counted behind the name, which may hold blanks.
    const QList<QByteArray> fields = all.mid(all.lastIndexOf(')') + 2).split(' ');
    return (fields.at(11).toDouble() + fields.at(12).toDouble()) / static_cast<double>(sysconf(_SC_CLK_TCK));
  }

 private:
  QProcess process_;
  QElapsedTimer clock_;
  double milliseconds_ = 0;
};

double median(std::vector<double> values) {
  std::nth_element(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2), values.end());
  return values[values.size() / 2];
}

bool judge(const char* what, double value, double limit, const char* unit) {
  const bool good = value <= limit;
  std::printf("%-52s %8.2f%s (limit %.0f%s) %s\n", what, value, unit, limit, unit, good ? "ok" : "TOO MUCH");
  return good;
}

bool measure_start(const QString& suite, const QString& bare) {
  std::vector<double> suite_times;
  std::vector<double> bare_times;
  // By turns, so that whatever else the computer does falls on both; the first start of each only warms the disk.
  for (int i = 0; i <= starts; ++i) {
    const double suite_time = Started(suite).milliseconds();
    const double bare_time = Started(bare).milliseconds();
    if (i == 0) continue;
    suite_times.push_back(suite_time);
    bare_times.push_back(bare_time);
  }
  std::printf("%-52s %8.1f ms\n%-52s %8.1f ms\n", "start to painted main window", median(suite_times),
              "start to painted bare window with twenty buttons", median(bare_times));
  return judge("ratio", median(suite_times) / median(bare_times), highest_ratio, "");
}

bool measure_rest(const QString& suite) {
  const Started program(suite);
  QThread::sleep(1);
  const bool small = judge("proportional set size after start", program.memory(), most_memory, " MB");
  const double before = program.processor_time();
  QThread::sleep(load_seconds);
  const double load = 100 * (program.processor_time() - before) / load_seconds;
  return judge("the decoration's share of one core", load, most_load, " %") && small;
}

} // namespace

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  const QString folder = QCoreApplication::applicationDirPath() + QLatin1Char('/');
  try {
    const bool quick = measure_start(folder + QStringLiteral("startup_suite"), folder + QStringLiteral("startup_bare"));
    const bool modest = measure_rest(folder + QStringLiteral("startup_suite"));
    return quick && modest ? 0 : 1;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
  }
}
