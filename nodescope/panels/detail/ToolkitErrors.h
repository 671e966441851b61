#pragma once

class MessageLog;

/**
 * Writes what the toolkit reports into a log as long as it lives. The handlers that were in place are called as before,
 * and put back at the end, except where the host has set another meanwhile.
 */
class ToolkitErrors {
public:
    explicit ToolkitErrors(MessageLog& log);
    ~ToolkitErrors();
    ToolkitErrors(const ToolkitErrors&) = delete;
    ToolkitErrors& operator=(const ToolkitErrors&) = delete;
};
