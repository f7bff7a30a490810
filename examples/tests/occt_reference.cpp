// What OpenCASCADE itself reports for a STEP or IGES file, computed without the translator, for
// the demo tests to compare the host's summary with:
//
//   occt_reference FILE SAG   prints "faces=N triangles=N datums=N dimensions=N tolerances=N"
//
// Faces and triangles count every part once (not once per instance), tessellated with the
// translator's parameters: SAG millimetres and 0.5 radians.

#include <BRepMesh_IncrementalMesh.hxx>
#include <BRep_Tool.hxx>
#include <IGESCAFControl_Reader.hxx>
#include <Message.hxx>
#include <Message_Messenger.hxx>
#include <Poly_Triangulation.hxx>
#include <STEPCAFControl_Reader.hxx>
#include <TDocStd_Document.hxx>
#include <TopExp.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <TopoDS.hxx>
#include <XCAFApp_Application.hxx>
#include <XCAFDoc_DimTolTool.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>

#include <cstdlib>
#include <iostream>
#include <string>

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::cerr << "usage: occt_reference FILE SAG\n";
        return 2;
    }
    const std::string path = argv[1];
    const double sag = std::atof(argv[2]);
    Message::DefaultMessenger()->ChangePrinters().Clear();

    Handle(TDocStd_Document) document;
    XCAFApp_Application::GetApplication()->NewDocument("MDTV-XCAF", document);
    const bool iges = path.size() > 4 && (path.substr(path.size() - 4) == ".igs" || path.substr(path.size() - 5) == ".iges");
    bool read = false;
    if (iges) {
        IGESCAFControl_Reader reader;
        read = reader.ReadFile(path.c_str()) == IFSelect_RetDone && reader.Transfer(document);
    } else {
        STEPCAFControl_Reader reader;
        reader.SetGDTMode(true);
        read = reader.ReadFile(path.c_str()) == IFSelect_RetDone && reader.Transfer(document);
    }
    if (!read) {
        std::cerr << "occt_reference: cannot read " << path << '\n';
        return 1;
    }

    const Handle(XCAFDoc_ShapeTool) shapes = XCAFDoc_DocumentTool::ShapeTool(document->Main());
    TDF_LabelSequence labels;
    shapes->GetShapes(labels);
    std::size_t faces = 0, triangles = 0;
    for (const TDF_Label& label : labels) {
        if (XCAFDoc_ShapeTool::IsAssembly(label))
            continue;
        const TopoDS_Shape shape = XCAFDoc_ShapeTool::GetShape(label);
        TopTools_IndexedMapOfShape faceMap;
        TopExp::MapShapes(shape, TopAbs_FACE, faceMap);
        if (faceMap.IsEmpty())
            continue;
        BRepMesh_IncrementalMesh(shape, sag, false, 0.5, true);
        faces += static_cast<std::size_t>(faceMap.Extent());
        for (int i = 1; i <= faceMap.Extent(); ++i) {
            TopLoc_Location location;
            const Handle(Poly_Triangulation) triangulation = BRep_Tool::Triangulation(TopoDS::Face(faceMap(i)), location);
            if (!triangulation.IsNull())
                triangles += static_cast<std::size_t>(triangulation->NbTriangles());
        }
    }

    TDF_LabelSequence datums, dimensions, tolerances;
    if (XCAFDoc_DocumentTool::CheckDimTolTool(document->Main())) {
        const Handle(XCAFDoc_DimTolTool) pmi = XCAFDoc_DocumentTool::DimTolTool(document->Main());
        pmi->GetDatumLabels(datums);
        pmi->GetDimensionLabels(dimensions);
        pmi->GetGeomToleranceLabels(tolerances);
    }
    std::cout << "faces=" << faces << " triangles=" << triangles << " datums=" << datums.Length()
              << " dimensions=" << dimensions.Length() << " tolerances=" << tolerances.Length() << '\n';
    return 0;
}
