#include <vexel/pick/PickScene.h>

#include <algorithm>

#include <vexel/pick/PickQuery.h>
#include <vexel/pick/detail/ThinCaster.h>
#include <vexel/pick/detail/TriangleCaster.h>
#include <vexel/render/RenderGeometry.h>

namespace vexel {

struct PickScene::Data {
    /** Items that hide each other by their distance. */
    struct Layer {
        explicit Layer(const PickItems& items) : triangles(items), thin(items) {}

        TriangleCaster triangles;
        ThinCaster thin;
    };

    PickItems items;
    Layer layers[2] = {Layer(items), Layer(items)}; ///< those in front first

    /** Calls `what` with the caster that is responsible for the item. */
    template <typename What>
    void withCaster(Item item, What&& what)
    {
        Layer& layer = layers[items[item].inFront ? 0 : 1];
        if (items[item].geometry->primitive() == RenderPrimitive::Triangles)
            what(layer.triangles);
        else
            what(layer.thin);
    }
};

namespace {

bool isNearer(const PickHit& a, const PickHit& b)
{
    return a.distance < b.distance;
}

} // namespace

PickScene::PickScene() : m_data(std::make_unique<Data>()) {}

PickScene::~PickScene() = default;

PickScene::Item PickScene::add(const PickItem& item)
{
    const Item number = m_data->items.add(item);
    m_data->withCaster(number, [=](auto& caster) { caster.add(number); });
    return number;
}

void PickScene::remove(Item item)
{
    m_data->withCaster(item, [=](auto& caster) { caster.remove(item); });
    m_data->items.remove(item);
}

void PickScene::setMatrix(Item item, const SbMatrix& matrix)
{
    m_data->items[item].matrix = matrix;
    m_data->withCaster(item, [=](auto& caster) { caster.moved(item); });
}

void PickScene::setGeometry(Item item, std::shared_ptr<const RenderGeometry> geometry)
{
    m_data->withCaster(item, [=](auto& caster) { caster.remove(item); });
    m_data->items[item].geometry = std::move(geometry);
    m_data->withCaster(item, [=](auto& caster) { caster.add(item); });
}

const PickItem& PickScene::item(Item item) const
{
    return m_data->items[item];
}

std::optional<PickHit> PickScene::closest(const PickQuery& query)
{
    if (!query.isValid())
        return std::nullopt;
    for (Data::Layer& layer : m_data->layers) {
        std::vector<PickHit> candidates;
        layer.thin.findAll(query, candidates);
        if (const std::optional<PickHit> surface = layer.triangles.closest(query))
            candidates.push_back(*surface);
        const auto nearest = std::min_element(candidates.begin(), candidates.end(), isNearer);
        if (nearest != candidates.end())
            return *nearest;
    }
    return std::nullopt;
}

std::vector<PickHit> PickScene::all(const PickQuery& query)
{
    std::vector<PickHit> hits;
    if (!query.isValid())
        return hits;
    for (Data::Layer& layer : m_data->layers) {
        const auto before = static_cast<std::ptrdiff_t>(hits.size());
        layer.triangles.findAll(query, hits);
        layer.thin.findAll(query, hits);
        std::stable_sort(hits.begin() + before, hits.end(), isNearer);
    }
    return hits;
}

} // namespace vexel
