// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class CameraStackedWidget;
class FileSystemView;
class FileThumbnail;
class ImageStackedWidget;

/// The wires between the pages of the centre area and the services, one function per conversation.

/// File browser and thumbnail list: opening, closing, comparing and renaming of files.
void ConnectThumbnails(FileThumbnail *fileThumbnail, FileSystemView *fileSystemView);
/// Saving with F8, new thumbnails, and the focus that a press on a view gives it.
void ConnectImageCommands(CameraStackedWidget *cameraStack, ImageStackedWidget *imageStack);
/// Pictures made by the processing services are opened by the main image manager.
void ConnectImageCopies();
