// One connection to a PostgreSQL server. It never waits for long: a server that is silent for some seconds is
// taken for lost, and so is one whose answers are so slow that an act of the user would take much longer.
#pragma once

#include <chrono>
#include <cstdint>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <libpq-fe.h>

#include "platform/Database.h"
#include "platform/Engine.h"
#include "platform/ServerLink.h"

namespace quillmetra {

// The numbers of failures for want of right, and of room on the server.
inline constexpr int ServerRefused = EngineFailures + 151, ServerHasNoRoom = EngineFailures + 152;

// The rows that a statement gave.
class PostgresResult {
public:
    explicit PostgresResult(PGresult* result) : result_(result, PQclear) {}

    int Rows() const { return PQntuples(result_.get()); }
    bool IsNull(int row, int column) const { return PQgetisnull(result_.get(), row, column) != 0; }
    std::string_view At(int row, int column) const {
        return {PQgetvalue(result_.get(), row, column),
                static_cast<std::size_t>(PQgetlength(result_.get(), row, column))};
    }
    std::int64_t Number(int row, int column) const;

private:
    std::shared_ptr<PGresult> result_;
};

// What stands for "$1", "$2", ... of a statement. It must last until the statement has run.
class PostgresParameters {
public:
    void AddNull() { Add(nullptr, 0, false); }
    void AddText(const std::string& text) { Add(text.c_str(), text.size(), false); }
    void AddBytes(const std::string& bytes) { Add(bytes.data(), bytes.size(), true); }

private:
    friend class PostgresConnection;
    void Add(const char* data, std::size_t size, bool isBytes);

    std::vector<const char*> data_;
    std::vector<int> sizes_, formats_;
};

class PostgresConnection {
    using Clock = std::chrono::steady_clock;

public:
    // Throws in words that say who refused.
    explicit PostgresConnection(const ServerLink& link);

    const ServerLink& Link() const { return link_; }
    bool IsAlive() const { return !isLost_; }
    bool InTransaction() const;
    // Whether it was gone at once when it was used again, as after a restart of the server: a new one may
    // serve.
    bool HasDiedUnused() const { return hasDiedUnused_; }

    // Runs a statement that stays prepared. What was put off before goes with it, so that it costs no time of
    // its own. After a failure of the server's the connection stays of use.
    PostgresResult Run(const std::string& sql, const PostgresParameters& parameters = {});
    // Several in the time of one, all with the same parameters; their answers in the same order. The first
    // failure is that of all.
    std::vector<PostgresResult> RunAll(std::span<const std::string> statements,
                                       const PostgresParameters& parameters);
    void PutOff(std::string sql) { putOff_.push_back(std::move(sql)); }
    // Takes back what was put off last; false when it has been sent.
    bool TakeBack();
    // Whether the server has told of a change since this was asked last; only the first time asks it
    // something.
    bool HasNotice();
    // Of whatever state, for one who goes on without.
    void Abandon() noexcept;

    [[noreturn]] void Lose(const std::string& reason);

private:
    using Handle = std::unique_ptr<PGconn, decltype(&PQfinish)>;
    using Options = std::vector<std::pair<std::string, std::string>>;

    void Connect();
    Options OptionsOfLink() const;
    static Handle Reach(const Options& options, Clock::time_point until);
    void Prepare();
    std::size_t SendPutOff();                    // how many
    bool SendToPrepare(const std::string& sql);  // false when it is prepared
    void Send(const std::string& sql, const PostgresParameters& parameters);
    // Until the server can be read from or, when there is something to be sent, written to; false when the
    // time is over before.
    static bool CanGoOn(PGconn* connection, bool alsoWrite, Clock::time_point until);
    void Wait(bool alsoWrite, Clock::time_point until);
    PGresult* Next();
    std::vector<PostgresResult> Collect(std::size_t statements);
    static Clock::duration Patience();
    static Clock::time_point Ask();
    void CountWait(Clock::time_point from);
    void EndAnswer();
    RuntimeError Failure(const PGresult* result) const;

    const ServerLink link_;
    Handle connection_{nullptr, PQfinish};
    std::map<std::string, std::string, std::less<>> prepared_;
    std::vector<std::string> putOff_;
    bool isOpen_ = false, isLost_ = false, hasDiedUnused_ = false, hasNotice_ = false, listens_ = false,
         isSlow_ = false;
    Clock::time_point asked_{}, answered_{};
    int preparedCount_ = 0;

    // Of the act at hand, which may use several connections: how long slow answers, with no quick one among
    // them, were waited for.
    static inline Clock::time_point lastAnswer_{};
    static inline Clock::duration waited_{};
};

}  // namespace quillmetra
