#pragma once

#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <string>

#include <vexel/actions/SoWriteAction.h>
#include <vexel/base/SoDebugError.h>
#include <vexel/base/SoReadError.h>
#include <vexel/io/SoDB.h>
#include <vexel/io/SoInput.h>
#include <vexel/io/SoOutput.h>
#include <vexel/nodes/SoSeparator.h>

/** Switches off what would print for every input. */
inline void prepareForFuzzing()
{
    SoDB::init();
    const auto ignore = [](const SoError*, void*) {};
    SoReadError::setHandlerCallback(ignore, nullptr);
    SoDebugError::setHandlerCallback(ignore, nullptr);
}

/** The scene of some bytes written as ascii; empty when there is no scene. */
inline std::string readAndWrite(const void* data, std::size_t size)
{
    SoInput in;
    in.setBuffer(data, size);
    SoSeparator* root = SoDB::readAll(&in);
    if (!root)
        return std::string();
    root->ref();
    SoOutput out;
    SoWriteAction(&out).apply(root);
    std::string text = out.getText();
    root->unref();
    return text;
}

/** Whatever was read from anywhere is written as a text that reads back as itself. */
inline void requireStableText(const std::string& text)
{
    if (text.empty())
        return;
    const std::string again = readAndWrite(text.data(), text.size());
    if (again == text)
        return;
    std::fprintf(stderr, "written:\n%s\nread again and written:\n%s\n", text.c_str(), again.c_str());
    std::abort();
}
