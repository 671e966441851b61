#pragma once

class SbString;
class SoInput;
class SoNode;
class SoSFImage;
class SoSFString;

/**
 * Reads a picture file into an image field, which counts as default from then on, because the file name tells it. An
 * empty name empties the image. A file that cannot be read is reported and leaves no image.
 */
void loadImageFile(const SbString& fileName, SoSFImage& image);

/**
 * Finds the picture of a node that was read from a scene file: beside that file, or in the directory list. Nothing is
 * done when the file gave no name, or the picture itself.
 */
void loadImageBeside(SoInput& in, const SoSFString& fileName, SoSFImage& image);
