#pragma once

#include "model/SurveyedPositions.h"

#include <QAbstractTableModel>
#include <QString>

namespace talvesk {

/// "Geophone 3" or "Shot 1".
QString nameOf(const SurveyedPoint& point);

/// What became of every geophone and shot of a table of surveyed positions, a row for each.
class SurveyedPointsTable : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Column {
    kName,
    kRow,
    kAcross,
    kXBefore,
    kX,
    kXDifference,
    kZBefore,
    kZ,
    kZDifference,
    kColumns
  };

  using QAbstractTableModel::QAbstractTableModel;

  /// \param doubtful of the points, from 0: their rows are marked
  void show(std::vector<SurveyedPoint> points, const std::vector<SurveyedRow>& rows,
            const std::vector<std::size_t>& doubtful);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  double value(const SurveyedPoint& point, int column) const;

  std::vector<SurveyedPoint> mPoints;
  std::vector<QString> mRows;  ///< of the table, as users find them
  std::vector<bool> mDoubtful;
};

}  // namespace talvesk
