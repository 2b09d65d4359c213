// See PostgresConnection.h.
#include "platform/PostgresConnection.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <future>
#include <string>
#include <thread>
#include <utility>

#ifdef _WIN32
#include <winsock2.h>
#else
#include <poll.h>
#endif

#include "platform/Engine.h"

namespace quillmetra {

namespace {

using namespace std::chrono_literals;

constexpr auto LongestSilence = 4000ms;
// Of one act: as long as all its answers together may take when each of them is slow.
constexpr auto LongestSlowness = 4000ms, SlowAnswer = 250ms;
constexpr auto BetweenActs = 1000ms;
constexpr int ServerLost = EngineFailures + 150;
constexpr int OldestServer = 130'000;

// By the first letters of the standard's codes of failures.
struct FailureWords {
    std::string_view Code;
    const char* Text;
    int Number;
};
constexpr FailureWords WordsOfFailures[] = {
    {"42501", "You have no right to do this on the server", ServerRefused},
    {"25006", "The server lets nobody write", ServerRefused},
    {"28", "The server refuses the log-in", ServerRefused},
    {"3D000", "The server has no such database", ServerRefused},
    {"53100", "The disk of the server is full", ServerHasNoRoom},
    {"53300", "The server takes no more connections", ServerRefused},
    {"53", "The server has no room left", ServerHasNoRoom},
    {"55P03", "The database is locked by another program", LockFailures[0]},
    {"40", "The database is locked by another program", LockFailures[0]},
    {"57P", "The server is being stopped or started", ServerLost},
    {"08", "The connection to the server is lost", ServerLost},
    {"42P01", "Open failed (Database invalid)", 3343},
    {"42703", "Open failed (Database invalid)", 3343},
    {"3F000", "Open failed (Database invalid)", 3343},
};

std::string FirstLine(const char* text) {
    const std::string_view all = text == nullptr ? "" : text;
    return std::string(all.substr(0, all.find_first_of("\r\n")));
}

// Of a connection, or of a statement.
std::string CodeOf(const PGresult* result, std::string_view message) {
    if (const char* code = PQresultErrorField(result, PG_DIAG_SQLSTATE)) return code;
    struct Sign {
        std::string_view Text, Code;
    };
    // A connection that is refused has no code, but English words unless the server has its own language.
    constexpr Sign signs[] = {{"authentication", "28000"},       {"pg_hba", "28000"},
                              {"no password supplied", "28000"}, {"role \"", "28000"},
                              {"database \"", "3D000"},          {"starting up", "57P03"},
                              {"shutting down", "57P01"},        {"not yet accepting", "57P03"},
                              {"too many clients", "53300"},     {"remaining connection slots", "53300"}};
    for (const Sign& each : signs) {
        if (message.find(each.Text) != std::string_view::npos) return std::string(each.Code);
    }
    return "";
}

}  // namespace

std::int64_t PostgresResult::Number(int row, int column) const {
    std::int64_t number = 0;
    const std::string_view text = At(row, column);
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

void PostgresParameters::Add(const char* data, std::size_t size, bool isBytes) {
    data_.push_back(data);
    sizes_.push_back(static_cast<int>(size));
    formats_.push_back(isBytes ? 1 : 0);
}

PostgresConnection::PostgresConnection(const ServerLink& link) : link_(link) {
    const auto asked = Ask();
    Connect();
    CountWait(asked);
    EndAnswer();
    Prepare();
}

// Keeps the names that are given; the library's own ways find the rest, a password above all.
PostgresConnection::Options PostgresConnection::OptionsOfLink() const {
    Options options = {{"service", link_.Service},
                       {"host", link_.Host},
                       {"port", link_.Port},
                       {"dbname", link_.Database},
                       {"user", link_.User},
                       {"client_encoding", "UTF8"},
                       {"fallback_application_name", "Quillmetra"},
                       {"tcp_user_timeout", "4000"},
                       {"keepalives_idle", "5"},
                       {"keepalives_interval", "2"},
                       {"keepalives_count", "2"}};
    std::erase_if(options, [](const auto& option) { return option.second.empty(); });
    return options;
}

// What has come of it by then: open, or with words about what is wrong; none when there was no answer.
PostgresConnection::Handle PostgresConnection::Reach(const Options& options, Clock::time_point until) {
    std::vector<const char*> names, values;
    for (const auto& [name, value] : options) {
        names.push_back(name.c_str());
        values.push_back(value.c_str());
    }
    names.push_back(nullptr);
    values.push_back(nullptr);
    Handle handle(PQconnectStartParams(names.data(), values.data(), 0), PQfinish);
    if (PQstatus(handle.get()) == CONNECTION_BAD) return handle;
    for (PostgresPollingStatusType next = PGRES_POLLING_WRITING;
         next != PGRES_POLLING_OK && next != PGRES_POLLING_FAILED; next = PQconnectPoll(handle.get())) {
        if (!CanGoOn(handle.get(), next == PGRES_POLLING_WRITING, until)) return {nullptr, PQfinish};
    }
    return handle;
}

// The library waits for the name of a host to be found, however long that takes; so it does this beside, and
// is left to itself when the time is over. It shares nothing with anything else.
void PostgresConnection::Connect() {
    const auto until = Clock::now() + LongestSilence;
    std::packaged_task<Handle()> reach([options = OptionsOfLink(), until] { return Reach(options, until); });
    std::future<Handle> reached = reach.get_future();
    std::thread(std::move(reach)).detach();
    if (reached.wait_until(until + SlowAnswer) == std::future_status::ready) connection_ = reached.get();
    if (connection_ == nullptr) Lose("It does not answer");
    if (PQstatus(connection_.get()) != CONNECTION_OK) Lose(PQerrorMessage(connection_.get()));
    if (PQserverVersion(connection_.get()) >= OldestServer) return;
    Abandon();
    throw RuntimeError(ServerRefused,
                       "The server is too old; PostgreSQL 13 or later is needed\n" + link_.Words());
}

// A client that has gone without a word holds its lock no longer than this.
void PostgresConnection::Prepare() {
    isOpen_ = true;
    PQsetnonblocking(connection_.get(), 1);
    PQsetNoticeProcessor(
        connection_.get(), [](void*, const char*) {}, nullptr);
    PQenterPipelineMode(connection_.get());
    for (const char* setting :
         {"idle_in_transaction_session_timeout = '60s'", "tcp_keepalives_idle = 5",
          "tcp_keepalives_interval = 2", "tcp_keepalives_count = 2", "tcp_user_timeout = 10000",
          "extra_float_digits = 1", "datestyle = 'ISO, YMD'", "search_path = pg_catalog"}) {
        PutOff(std::string("SET ") + setting);
    }
}

bool PostgresConnection::InTransaction() const {
    if (isLost_) return false;
    const PGTransactionStatusType status = PQtransactionStatus(connection_.get());
    return status == PQTRANS_INTRANS || status == PQTRANS_INERROR;
}

bool PostgresConnection::TakeBack() {
    if (putOff_.empty()) return false;
    putOff_.pop_back();
    return true;
}

void PostgresConnection::Abandon() noexcept {
    isLost_ = true;
    connection_.reset();
}

void PostgresConnection::Lose(const std::string& reason) {
    const std::string message = FirstLine(reason.c_str());
    const std::string code = CodeOf(nullptr, message);
    hasDiedUnused_ = isOpen_ && answered_ != Clock::time_point() && Clock::now() - asked_ < SlowAnswer;
    Abandon();
    std::string words = isOpen_ ? "The connection to the server is lost; try again when it is back"
                                : "The server cannot be reached";
    int number = ServerLost;
    for (const FailureWords& each : WordsOfFailures) {
        if (code.empty() || !code.starts_with(each.Code)) continue;
        words = each.Text;
        number = each.Number;
        break;
    }
    throw RuntimeError(number, words + "\n" + link_.Words() + "\n" + message);
}

bool PostgresConnection::CanGoOn(PGconn* connection, bool alsoWrite, Clock::time_point until) {
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(until - Clock::now());
    if (left.count() <= 0) return false;
#ifdef _WIN32
    WSAPOLLFD waiting{};
    const auto wait = [&] { return WSAPoll(&waiting, 1, static_cast<int>(left.count())); };
    waiting.fd = static_cast<SOCKET>(PQsocket(connection));
#else
    pollfd waiting{};
    const auto wait = [&] { return poll(&waiting, 1, static_cast<int>(left.count())); };
    waiting.fd = PQsocket(connection);
#endif
    waiting.events = static_cast<short>(POLLIN | (alsoWrite ? POLLOUT : 0));
    return wait() != 0;
}

void PostgresConnection::Wait(bool alsoWrite, Clock::time_point until) {
    if (!CanGoOn(connection_.get(), alsoWrite, until)) Lose("It does not answer");
}

std::size_t PostgresConnection::SendPutOff() {
    const std::vector<std::string> putOff = std::exchange(putOff_, {});
    for (const std::string& sql : putOff) {
        if (PQsendQueryParams(connection_.get(), sql.c_str(), 0, nullptr, nullptr, nullptr, nullptr, 0) == 0)
            Lose(PQerrorMessage(connection_.get()));
    }
    return putOff.size();
}

bool PostgresConnection::SendToPrepare(const std::string& sql) {
    if (prepared_.contains(sql)) return false;
    const std::string& name = prepared_[sql] = std::to_string(++preparedCount_);
    if (PQsendPrepare(connection_.get(), name.c_str(), sql.c_str(), 0, nullptr) == 0)
        Lose(PQerrorMessage(connection_.get()));
    return true;
}

void PostgresConnection::Send(const std::string& sql, const PostgresParameters& parameters) {
    if (PQsendQueryPrepared(connection_.get(), prepared_.at(sql).c_str(),
                            static_cast<int>(parameters.data_.size()), parameters.data_.data(),
                            parameters.sizes_.data(), parameters.formats_.data(), 0) == 0) {
        Lose(PQerrorMessage(connection_.get()));
    }
}

// The next result, or none at the end of a statement.
PGresult* PostgresConnection::Next() {
    auto until = Clock::now() + Patience();
    for (;;) {
        const int unsent = PQflush(connection_.get());
        if (unsent < 0) Lose(PQerrorMessage(connection_.get()));
        if (PQisBusy(connection_.get()) == 0) return PQgetResult(connection_.get());
        const auto from = Clock::now();
        Wait(unsent > 0, until);
        CountWait(from);
        if (PQconsumeInput(connection_.get()) == 0) Lose(PQerrorMessage(connection_.get()));
        until = Clock::now() + Patience();
    }
}

PostgresResult PostgresConnection::Run(const std::string& sql, const PostgresParameters& parameters) {
    return RunAll({&sql, 1}, parameters).front();
}

std::vector<PostgresResult> PostgresConnection::RunAll(std::span<const std::string> statements,
                                                       const PostgresParameters& parameters) {
    if (isLost_) throw RuntimeError(ServerLost, "The connection to the server is lost\n" + link_.Words());
    asked_ = Ask();
    const std::size_t putOff = SendPutOff();
    std::vector<std::string> unprepared;
    for (const std::string& sql : statements) {
        if (SendToPrepare(sql)) unprepared.push_back(sql);
    }
    for (const std::string& sql : statements) Send(sql, parameters);
    if (PQpipelineSync(connection_.get()) == 0) Lose(PQerrorMessage(connection_.get()));
    std::vector<PostgresResult> answers;
    try {
        answers = Collect(putOff + unprepared.size() + statements.size());
    } catch (const RuntimeError&) {
        for (const std::string& sql : unprepared) prepared_.erase(sql);
        throw;
    }
    EndAnswer();
    answers.erase(answers.begin(), answers.end() - static_cast<std::ptrdiff_t>(statements.size()));
    return answers;
}

// Reads all answers up to the mark behind them, so that the connection is ready again.
std::vector<PostgresResult> PostgresConnection::Collect(std::size_t statements) {
    std::vector<PostgresResult> answers;
    std::unique_ptr<PGresult, decltype(&PQclear)> failed(nullptr, PQclear);
    for (std::size_t i = 0; i <= statements;) {
        std::unique_ptr<PGresult, decltype(&PQclear)> result(Next(), PQclear);
        if (result == nullptr) {
            if (PQstatus(connection_.get()) == CONNECTION_BAD) Lose(PQerrorMessage(connection_.get()));
            continue;  // the end of a statement
        }
        ++i;
        const ExecStatusType status = PQresultStatus(result.get());
        if (status == PGRES_PIPELINE_SYNC) break;
        if (status == PGRES_FATAL_ERROR && failed == nullptr) {
            failed = std::move(result);
        } else if (status == PGRES_TUPLES_OK || status == PGRES_COMMAND_OK) {
            answers.emplace_back(result.release());
        }
    }
    if (failed != nullptr) {
        if (Failure(failed.get()).Number == ServerLost) Lose(PQresultErrorMessage(failed.get()));
        throw Failure(failed.get());
    }
    return answers;
}

// Behind a pause a new act begins.
PostgresConnection::Clock::time_point PostgresConnection::Ask() {
    const auto now = Clock::now();
    if (now - lastAnswer_ > BetweenActs) waited_ = {};
    return now;
}

// Less where the server has been slow in this act.
PostgresConnection::Clock::duration PostgresConnection::Patience() {
    return std::max<Clock::duration>(LongestSilence - waited_, SlowAnswer);
}

// What comes in a stream is not waited for.
void PostgresConnection::CountWait(Clock::time_point from) {
    const auto waited = Clock::now() - from;
    if (waited <= SlowAnswer) return;
    isSlow_ = true;
    waited_ += waited;
    if (waited_ > LongestSlowness) Lose("It answers too slowly");
}

void PostgresConnection::EndAnswer() {
    answered_ = lastAnswer_ = Clock::now();
    if (!std::exchange(isSlow_, false)) waited_ = {};
}

bool PostgresConnection::HasNotice() {
    if (!std::exchange(listens_, true)) Run("LISTEN quillmetra");
    if (PQconsumeInput(connection_.get()) == 0) Lose(PQerrorMessage(connection_.get()));
    while (PGnotify* const notice = PQnotifies(connection_.get())) {
        hasNotice_ = hasNotice_ || notice->extra == link_.Schema;
        PQfreemem(notice);
    }
    return std::exchange(hasNotice_, false);
}

RuntimeError PostgresConnection::Failure(const PGresult* result) const {
    const std::string message = FirstLine(PQresultErrorField(result, PG_DIAG_MESSAGE_PRIMARY));
    const std::string code = CodeOf(result, PQresultErrorMessage(result));
    for (const FailureWords& each : WordsOfFailures) {
        if (!code.starts_with(each.Code)) continue;
        return {each.Number, std::string(each.Text) + "\n" + link_.Words() + "\n" + message};
    }
    return {ServerRefused, "The server refuses: " + message + "\n" + link_.Words()};
}

}  // namespace quillmetra
