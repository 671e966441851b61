#include <vexel/render/detail/ShaderSource.h>

#include <vexel/render/detail/ShaderTexts.h>

namespace vexel {

namespace {

const char* const KnobNames[ProgramKey::Count] = {
    "TOPOLOGY",    "OUTPUT",   "LIT",          "TWO_SIDED", "FACET_NORMALS", "VERTEX_COLORS", "SHINY",
    "TEXTURE0",    "TEXTURE1", "TEXTURE2",     "TEXTURE3",  "DIRECTIONAL",   "POINT",         "SPOT",
    "CLIP_PLANES", "FOG",      "ROUND_POINTS", "SIGNS",     "MULTISAMPLED"};

std::string define(const std::string& name, int value)
{
    return "#define " + name + ' ' + std::to_string(value) + '\n';
}

/** The names that stand for the parts of the texture knobs. */
std::string textureDefines(const ProgramKey& key)
{
    std::string result;
    bool bumps = false;
    for (int texture = 0; texture < ProgramKey::MaxTextures; ++texture) {
        const TextureKnob knob = key.texture(texture);
        const std::string number = std::to_string(texture);
        result += define("DIMENSIONS" + number, knob.dimensions) + define("MODEL" + number, knob.model) +
                  define("COORDINATES" + number, knob.coordinates);
        bumps = bumps || (knob.dimensions && knob.model == TextureKnob::Bump);
    }
    return result + define("BUMPS", bumps);
}

/** Repeats the marked lines for every texture. */
std::string repeatPerTexture(const std::string& text, const ProgramKey& key)
{
    const std::string begin = "$each texture\n";
    const std::string end = "$end\n";
    std::string result;
    std::size_t position = 0;
    for (;;) {
        const std::size_t found = text.find(begin, position);
        result += text.substr(position, found - position);
        if (found == std::string::npos)
            return result;
        const std::size_t last = text.find(end, found);
        const std::string lines = text.substr(found + begin.size(), last - found - begin.size());
        for (int texture = 0; texture < ProgramKey::MaxTextures; ++texture) {
            if (!key.texture(texture).dimensions)
                continue;
            for (const char c : lines)
                result += c == '@' ? static_cast<char>('0' + texture) : c;
        }
        position = last + end.size();
    }
}

std::string block(const char* direction, const char* name)
{
    return std::string(direction) + " Surface {" + SurfaceShaderText + "} " + name + ";\n";
}

} // namespace

ShaderSource::ShaderSource(const ProgramKey& key)
{
    std::string head = "#version 330 core\n";
    if (key[ProgramKnob::Multisampled])
        head += "#extension GL_ARB_sample_shading : enable\n";
    for (std::size_t knob = 0; knob < ProgramKey::Count; ++knob)
        head += define(KnobNames[knob], key[static_cast<ProgramKnob>(knob)]);
    head += textureDefines(key) + CommonShaderText;

    const bool wide = key[ProgramKnob::Topology] == ProgramKey::WideLines;
    vertex = repeatPerTexture(
        head + block("out", "surface") + (wide ? "out vec4 worldPlace;\n" : "") + VertexShaderText, key);
    if (wide)
        geometry = repeatPerTexture(head + block("in", "ends[]") + block("out", "surface") + "in vec4 worldPlace[];\n" +
                                        GeometryShaderText,
                                    key);
    fragment = repeatPerTexture(head + block("in", "surface") + FragmentShaderText, key);
}

} // namespace vexel
