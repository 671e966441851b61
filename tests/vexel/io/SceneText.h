#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include <vexel/actions/SoWriteAction.h>
#include <vexel/base/SbString.h>
#include <vexel/base/SoReadError.h>
#include <vexel/io/SoDB.h>
#include <vexel/io/SoInput.h>
#include <vexel/io/SoOutput.h>
#include <vexel/nodes/SoSeparator.h>

/** Collects what is posted as read error while it exists. */
class ReadErrors {
public:
    ReadErrors()
    {
        SoReadError::setHandlerCallback(
            [](const SoError* error, void* data) {
                static_cast<ReadErrors*>(data)->texts.push_back(error->getDebugString().toUtf8().toStdString());
            },
            this);
    }
    ~ReadErrors() { SoReadError::setHandlerCallback(nullptr, nullptr); }

    std::vector<std::string> texts;
};

/** A scene read from text; released with the object. */
class Scene {
public:
    explicit Scene(const std::string& text) : m_text(text)
    {
        SoDB::init();
        SoInput in;
        in.setBuffer(m_text.data(), m_text.size());
        root = SoDB::readAll(&in);
        if (root)
            root->ref();
    }
    Scene(const Scene&) = delete;
    Scene& operator=(const Scene&) = delete;
    ~Scene()
    {
        if (root)
            root->unref();
    }

    SoSeparator* root = nullptr;

private:
    std::string m_text;
};

/** What the write action makes of a graph, in ascii or binary. */
inline std::string written(SoNode* root, bool binary = false)
{
    SoOutput out;
    out.setBinary(binary);
    SoWriteAction(&out).apply(root);
    return out.getText();
}

/** The ascii text that a scene text turns into. */
inline std::string rewritten(const std::string& text)
{
    const Scene scene(text);
    return scene.root ? written(scene.root) : std::string("nothing");
}
