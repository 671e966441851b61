#include "ToolkitErrors.h"

#include <nodescope/panels/MessageLog.h>
#include <vexel/base/SoDebugError.h>
#include <vexel/base/SoReadError.h>

#include <deque>
#include <mutex>

namespace {

/** A handler between the toolkit and the one that was in place. */
struct Link {
    MessageLog* log = nullptr; ///< null: at rest
    SoErrorCB* next = nullptr;
    void* nextData = nullptr;
};

std::mutex mutex; ///< guards all links: errors may come from any thread

void write(MessageLog& log, const SoDebugError& error)
{
    static constexpr const char* Titles[] = {"Error in ", "Warning in ", "Information from "}; // by severity
    const bool isNote = error.getSeverity() == SoDebugError::INFO;
    log.add(isNote ? MessageLog::Kind::Note : MessageLog::Kind::Problem,
            error.getDebugString().toQString().mid(int(qstrlen(Titles[error.getSeverity()]))));
}

void write(MessageLog& log, const SoReadError& error)
{
    log.add(MessageLog::Kind::Problem, error.getDebugString().toQString());
}

void write(MessageLog& log, const SoError& error)
{
    log.add(MessageLog::Kind::Problem, QString(), error.getDebugString().toQString());
}

template <class Error>
void handle(const SoError* error, void* data)
{
    Link link;
    {
        const std::lock_guard lock(mutex);
        link = *static_cast<Link*>(data);
        if (link.log)
            write(*link.log, static_cast<const Error&>(*error));
    }
    link.next(error, link.nextData);
}

/** The links of one kind of error. None is ever deleted: a host's handler may go on calling one that it replaced. */
template <class Error>
std::deque<Link>& links()
{
    static auto* const all = new std::deque<Link>;
    return *all;
}

template <class Error>
void install(MessageLog& log)
{
    const std::lock_guard lock(mutex);
    Link& link = links<Error>().emplace_back();
    link = {&log, Error::getHandlerCallback(), Error::getHandlerData()};
    Error::setHandlerCallback(handle<Error>, &link);
}

template <class Error>
void remove()
{
    const std::lock_guard lock(mutex);
    Link& link = links<Error>().back();
    link.log = nullptr;
    if (Error::getHandlerCallback() == handle<Error> && Error::getHandlerData() == &link)
        Error::setHandlerCallback(link.next, link.nextData);
}

} // namespace

ToolkitErrors::ToolkitErrors(MessageLog& log)
{
    install<SoError>(log);
    install<SoDebugError>(log);
    install<SoReadError>(log);
}

ToolkitErrors::~ToolkitErrors()
{
    remove<SoError>();
    remove<SoDebugError>();
    remove<SoReadError>();
}
