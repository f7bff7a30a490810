#pragma once

// The product structure of an assembly, made the way a translator reports one, for the
// benchmarks, the tests, the fuzz seeds and the glTF export:
//
//   auto structure = hrm::samples::productStructure(1000, 10000);   // blocks, references
//
// Block 1 is the top assembly, placed once by the one root reference. About a tenth of the
// blocks are assemblies, arranged as a tree of four sub-assemblies per assembly; the rest are
// parts. The references place the sub-assemblies in their parents and then the parts, in turn,
// under the assemblies, each with a rotation about the z axis and a translation on a grid;
// every third part instance has its own colour, every tenth is hidden, and every block and
// reference carries its properties. Header-only and deterministic.
//
// samples::full:: holds one small object of every class of the family with every member away
// from its default (what the tests and the fuzz seeds use).

#include <hrm_api/hrm_api_exchange_structure.h>

#include "common_sample.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace hrm::samples {

// A transformation that turns by `degrees` about z and then moves by (x, y, z).
inline ExcTransformation placement(double degrees, double x, double y, double z)
{
    const double radians = degrees * 3.14159265358979323846 / 180.0;
    const double c = std::cos(radians), s = std::sin(radians);
    ExcTransformation transformation;
    transformation.affine()[0].set(c, -s, 0.0);
    transformation.affine()[1].set(s, c, 0.0);
    transformation.affine()[2].set(0.0, 0.0, 1.0);
    transformation.translation().set(x, y, z);
    return transformation;
}

// A GUID-like identifier made from a number: 8-4-4-4-12 lowercase hexadecimal digits.
inline std::wstring sampleGuid(uint64_t number)
{
    const uint64_t high = number * 0x9E3779B97F4A7C15ull, low = number ^ 0x5DEECE66Dull;
    std::wstring guid;
    for (int digit = 0; digit < 32; ++digit) {
        if (digit == 8 || digit == 12 || digit == 16 || digit == 20)
            guid += L'-';
        const uint64_t word = digit < 16 ? high : low;
        guid += L"0123456789abcdef"[(word >> (4 * (15 - digit % 16))) & 0xF];
    }
    return guid;
}

// The properties a CAD system attaches to a reference: where it comes from and its revision.
inline ExcMiscData instanceProperties(std::size_t number)
{
    using Type = ExcMiscProperty::EType;
    auto group = std::make_shared<ExcMiscPropertiesGroup>();
    group->setName(L"Instance");
    group->addProperty(ExcMiscProperty(L"InstanceNumber", Type::Integer, std::to_wstring(number)));
    group->addProperty(ExcMiscProperty(L"Revision", Type::String, number % 7 == 0 ? L"B" : L"A"));
    ExcMiscData data;
    data.addGroup(group);
    return data;
}

inline std::shared_ptr<ExcProductStructure> productStructure(std::size_t blocks, std::size_t references)
{
    blocks = std::max<std::size_t>(blocks, 2);
    const std::size_t assemblies = std::max<std::size_t>(1, blocks / 10);
    const std::size_t parts = blocks - assemblies;

    auto structure = std::make_shared<ExcProductStructure>();
    structure->setProductName(L"Gearbox GX-400");
    structure->setProductConfigurationName(L"Default");
    structure->setUnits(ELengthUnitType::Millimeter);
    structure->setWorldOrientation(EWorldOrientation::UpZ);
    structure->miscData().addGroup(partProperties(L"GX-400", 182.5));

    std::vector<std::shared_ptr<ExcBlock>> made;
    for (std::size_t b = 0; b < blocks; ++b) {
        auto block = std::make_shared<ExcBlock>();
        const bool part = b >= assemblies;
        const std::wstring number = std::to_wstring(part ? 10000 + b : 1000 + b);
        block->setId(b + 1);
        block->setName((part ? L"Part-" : L"Assembly-") + number);
        block->setStorageName((part ? L"parts/P-" : L"assemblies/A-") + number + (part ? L".prt" : L".asm"));
        block->setWorldOrientation(EWorldOrientation::UpZ);
        block->setPart(part);
        block->miscData().addGroup(partProperties(L"P-" + number, part ? 0.02 + double(b % 97) * 0.35 : 0.0));
        made.push_back(block);
        structure->addBlock(block);
    }

    auto reference = [&](std::size_t number, uint64_t blockId) {
        auto placed = std::make_shared<ExcBlockReference>();
        placed->setGuid(sampleGuid(number + 1));
        placed->setPersistentId(L"pid:" + std::to_wstring(number + 1));
        placed->setPersistentName(L"Instance." + std::to_wstring(number + 1));
        placed->setBlockId(blockId);
        placed->setName(made[blockId - 1]->name() + L":" + std::to_wstring(number % 50 + 1));
        placed->setTransformation(placement(double(number % 24) * 15.0, double(number % 40) * 25.0,
                                            double((number / 40) % 40) * 25.0, double(number % 3) * 12.5));
        if (number % 3 == 0)
            placed->setColor(ExcColor(static_cast<uint16_t>(number * 37 % 256), static_cast<uint16_t>(number * 91 % 256),
                                      static_cast<uint16_t>(number * 53 % 256)));
        placed->setHidden(number % 10 == 9);
        placed->setConfigurationName(number % 5 == 0 ? L"Simplified" : L"Default");
        placed->miscData() = instanceProperties(number);
        return placed;
    };

    std::size_t number = 0;
    if (references > 0) {
        auto root = reference(number++, 1);
        root->setName(L"Gearbox GX-400");
        root->setTransformation(ExcTransformation());
        structure->addRootBlockReference(root);
    }
    // Sub-assembly k (k >= 1) sits in assembly (k - 1) / 4, so the assemblies form a tree.
    for (std::size_t k = 1; k < assemblies && number < references; ++k)
        made[(k - 1) / 4]->addBlockReference(reference(number++, k + 1));
    for (std::size_t p = 0; number < references; ++p)
        made[p % assemblies]->addBlockReference(reference(number++, assemblies + 1 + p % parts));
    return structure;
}

namespace full {

inline std::shared_ptr<ExcBlockReference> blockReference()
{
    auto reference = std::make_shared<ExcBlockReference>();
    reference->setGuid(sampleGuid(7));
    reference->setPersistentId(L"pid:7");
    reference->setPersistentName(L"Shaft.1");
    reference->setBlockId(2);
    reference->setName(L"Shaft:1");
    reference->setTransformation(placement(90.0, 10.0, -20.5, 3.25));
    reference->setColor(ExcColor(200, 16, 32, 128));
    reference->setHidden(true);
    reference->setSuppressed(true);
    reference->setConfigurationName(L"Simplified");
    reference->miscData() = instanceProperties(7);
    return reference;
}

inline std::shared_ptr<ExcBlock> productBlock()
{
    auto block = std::make_shared<ExcBlock>();
    block->setId(1);
    block->setName(L"Gearbox");
    block->setStorageName(L"assemblies/gearbox.asm");
    block->setWorldOrientation(EWorldOrientation::UpY);
    block->miscData() = *miscData();
    block->addBlockReference(blockReference());
    block->setPart(true);
    return block;
}

inline std::shared_ptr<ExcProductStructure> productStructure()
{
    auto structure = std::make_shared<ExcProductStructure>();
    structure->setProductName(L"Gearbox GX-400");
    structure->setProductConfigurationName(L"Simplified");
    structure->miscData() = *miscData();
    structure->setUnits(ELengthUnitType::Inch);
    structure->setWorldOrientation(EWorldOrientation::UpX);
    structure->addBlock(productBlock());
    auto shaft = std::make_shared<ExcBlock>();
    shaft->setId(2);
    shaft->setName(L"Shaft");
    shaft->setPart(true);
    structure->addBlock(shaft);
    structure->addRootBlockReference(blockReference());
    return structure;
}

} // namespace full

} // namespace hrm::samples
