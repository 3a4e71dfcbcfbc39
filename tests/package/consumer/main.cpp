// A host's least program: makes a model, writes it as a document, reads it back.

#include <cstdlib>
#include <iostream>
#include <sstream>
#include <string>

#include "document/ModelDocument.h"
#include "model/VynData.h"

int main() {
    Tevra::CVynData model;
    model.SetNode(7, Tevra::Data::CNode({1.0, 2.0, 3.5}));

    std::stringstream document;
    std::string error;
    Tevra::CVynData copy;
    if (!Tevra::Document::WriteDocument(model, document, error) ||
        !Tevra::Document::ReadDocument(document, copy, error)) {
        std::cerr << error << '\n';
        return EXIT_FAILURE;
    }
    const bool same =
        copy.HighestNode() == 7 && copy.Node(7).Position() == model.Node(7).Position();
    std::cout << document.str() << '\n';
    return same ? EXIT_SUCCESS : EXIT_FAILURE;
}
