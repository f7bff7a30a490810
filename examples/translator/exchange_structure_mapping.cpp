// The assembly tree as the product structure.

#include "exchange_mapping.h"

#include <filesystem>

namespace translator {
namespace {

std::shared_ptr<hrm::ExcBlockReference> referenceOf(const cad::Structure& structure, const cad::Component& component)
{
    auto reference = std::make_shared<hrm::ExcBlockReference>();
    reference->setPersistentId(wide(component.entry));
    reference->setBlockId(blockId(component.block));
    reference->setName(wide(component.name));
    reference->setTransformation(transformationOf(component.placement));
    if (const std::optional<cad::Rgba>& color = component.color ? component.color : structure.blocks[component.block].color)
        reference->setColor(colorOf(*color));
    return reference;
}

} // namespace

std::shared_ptr<hrm::ExcProductStructure> productStructure(const cad::Structure& structure, const std::string& file)
{
    const std::wstring storage = wide(std::filesystem::path(file).filename().string());
    auto product = std::make_shared<hrm::ExcProductStructure>();
    product->setProductName(wide(structure.productName));
    product->setUnits(hrm::ELengthUnitType::Millimeter);
    product->setWorldOrientation(hrm::EWorldOrientation::UpZ);
    for (std::size_t index = 0; index < structure.blocks.size(); ++index) {
        const cad::Block& source = structure.blocks[index];
        auto block = std::make_shared<hrm::ExcBlock>();
        block->setId(blockId(index));
        block->setName(wide(source.name));
        block->setStorageName(storage);
        block->setWorldOrientation(hrm::EWorldOrientation::UpZ);
        block->setPart(!source.isAssembly);
        for (const cad::Component& component : source.components)
            block->addBlockReference(referenceOf(structure, component));
        product->addBlock(block);
    }
    for (const cad::Component& root : structure.roots)
        product->addRootBlockReference(referenceOf(structure, root));
    return product;
}

} // namespace translator
