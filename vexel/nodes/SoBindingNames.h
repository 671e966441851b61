#pragma once

#include <vexel/fields/SoEnumEntry.h>

/**
 * How the values of a list are given to the parts, faces and vertices of shapes; the same numbers for all kinds of
 * lists.
 * @tparam Usual  the number that DEFAULT and NONE stand for
 */
template <int Usual>
struct SoBindingNames {
    enum Binding {
        OVERALL,
        PER_PART,
        PER_PART_INDEXED,
        PER_FACE,
        PER_FACE_INDEXED,
        PER_VERTEX,
        PER_VERTEX_INDEXED,
        DEFAULT = Usual,
        NONE = Usual
    };
    static constexpr SoEnumEntry Binding_names[] = {{"OVERALL", OVERALL},
                                                    {"PER_PART", PER_PART},
                                                    {"PER_PART_INDEXED", PER_PART_INDEXED},
                                                    {"PER_FACE", PER_FACE},
                                                    {"PER_FACE_INDEXED", PER_FACE_INDEXED},
                                                    {"PER_VERTEX", PER_VERTEX},
                                                    {"PER_VERTEX_INDEXED", PER_VERTEX_INDEXED},
                                                    {"DEFAULT", DEFAULT},
                                                    {"NONE", NONE}};
};
