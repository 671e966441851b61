#include <vexel/base/SbFileHelper.h>
#include <vexel/base/SbString.h>
#include <vexel/base/SoDynamicLibManager.h>
#include <vexel/base/SoPreferences.h>

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

TEST(DynamicLib, FindsTheLibraryOfASymbol)
{
    const SbString byAddress =
        SoDynamicLibManager::getLibraryFromSymbol(reinterpret_cast<const void*>(&SoPreferences::hasValue));
    EXPECT_TRUE(SbFileHelper::isAbsolute(byAddress));
    EXPECT_EQ(SbFileHelper::getBaseName(byAddress), "libvexel.so");
    EXPECT_TRUE(SbFileHelper::isAccessible(byAddress, SbFileHelper::READ));
    EXPECT_EQ(SoDynamicLibManager::getLibraryFromSymbol("_ZN13SoPreferences8hasValueERK8SbString"), byAddress);
}

TEST(DynamicLib, UnknownSymbolsHaveNoLibrary)
{
    EXPECT_TRUE(SoDynamicLibManager::getLibraryFromSymbol("no_such_symbol_anywhere").isEmpty());
    EXPECT_TRUE(SoDynamicLibManager::getLibraryFromSymbol(static_cast<const void*>(nullptr)).isEmpty());
}

TEST(DynamicLib, LoadsByNameBesideTheToolkit)
{
    SbString message;
    const SoDynamicLibManager::Handle library = SoDynamicLibManager::loadLibrary("vexel", &message);
    ASSERT_NE(library, nullptr) << message.toUtf8().constData();
    EXPECT_EQ(SoDynamicLibManager::getSymbol(library, "_ZN13SoPreferences8hasValueERK8SbString"),
              reinterpret_cast<void*>(&SoPreferences::hasValue));
    EXPECT_EQ(SoDynamicLibManager::getSymbol(library, "no_such_symbol_anywhere"), nullptr);
    SoDynamicLibManager::unloadLibrary(library);
}

TEST(DynamicLib, LoadsByPath)
{
    const SbString path = SoDynamicLibManager::getLibraryFromSymbol("_ZN13SoPreferences8hasValueERK8SbString");
    const SoDynamicLibManager::Handle library = SoDynamicLibManager::loadLibrary(path);
    EXPECT_NE(library, nullptr);
    SoDynamicLibManager::unloadLibrary(library);
}

TEST(DynamicLib, AMissingLibraryIsReportedToTheCallerOnly)
{
    SbString message;
    EXPECT_EQ(SoDynamicLibManager::loadLibrary("NoSuchModule", &message), nullptr);
    EXPECT_GE(message.find("libNoSuchModule.so"), 0);
    EXPECT_EQ(SoDynamicLibManager::loadLibrary("NoSuchModule"), nullptr);
    EXPECT_EQ(SoDynamicLibManager::getSymbol(nullptr, "main"), nullptr);
    SoDynamicLibManager::unloadLibrary(nullptr);
}

TEST(DynamicLib, AFileThatIsNoLibraryIsReported)
{
    QTemporaryDir folder;
    QFile file(folder.filePath("broken.so"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("not a library");
    file.close();
    SbString message;
    EXPECT_EQ(SoDynamicLibManager::loadLibrary(file.fileName(), &message), nullptr);
    EXPECT_GE(message.find("broken.so"), 0);
}
