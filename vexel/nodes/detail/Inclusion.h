#pragma once

#include <cstddef>

class SbString;
class SoInput;

/** One file being read into another: knows what files are open on the way, so that none is read inside itself. */
class Inclusion {
public:
    /**
     * Full name of the file that an including file names; empty, with an error posted, when there is none. @p in is
     * given the directories to go on with.
     */
    static SbString find(const SbString& name, const SoInput* includer, SoInput& in);

    Inclusion(const SbString& fullName, const SoInput* includer);
    Inclusion(const Inclusion&) = delete;
    Inclusion& operator=(const Inclusion&) = delete;
    ~Inclusion();

    /** False, with an error posted, for a file inside itself, and when too many files are included. */
    bool isAllowed() const { return m_isAllowed; }

private:
    std::size_t m_before;
    bool m_isAllowed = true;
};
